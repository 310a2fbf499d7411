#ifndef QUEN_3_1_HELP_HELP_TEXT_H
#define QUEN_3_1_HELP_HELP_TEXT_H

#include <string>

namespace quen_3_1 {

class RegisteredOptionStorage;

// The help text of the registry: groups in first-seen order, one entry per
// listed option. `hidden` selects the hidden group instead of all others.
std::string describeOptions(RegisteredOptionStorage const& options, bool hidden);

// Wraps `text` into lines of at most indent + width - 1 characters, the
// first one starting with `head`.
std::string paragraphString(std::string text, std::string head, unsigned long indent, unsigned long width);

}  // namespace quen_3_1

#endif
