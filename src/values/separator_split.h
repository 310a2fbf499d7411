#ifndef QUEN_3_1_VALUES_SEPARATOR_SPLIT_H
#define QUEN_3_1_VALUES_SEPARATOR_SPLIT_H

#include <string>
#include <vector>

namespace quen_3_1 {

// Splits name lists and value texts. The character right after a separator
// always joins the next piece untested, and a trailing separator yields a
// final one-character NUL piece: "a,,b" -> "a", ",b"; "a," -> "a", "\0";
// "," -> "", "\0". Hosts depend on these results, so they are kept.
void splitAtSeparator(std::string const& text, char separator, std::vector<std::string>& out);
// The same for a NUL-terminated text, not copied first.
void splitAtSeparator(char const* text, char separator, std::vector<std::string>& out);

}  // namespace quen_3_1

#endif
