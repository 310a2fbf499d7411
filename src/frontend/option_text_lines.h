#ifndef QUEN_3_1_FRONTEND_OPTION_TEXT_LINES_H
#define QUEN_3_1_FRONTEND_OPTION_TEXT_LINES_H

#include <string>
#include <vector>

namespace quen_3_1 {

// The arguments of an option text, one per line: white space (as the global
// locale classifies it) skipped at the start, lines whose first other
// character is ';' or '#' dropped, trailing '\r' removed, empty lines dropped.
std::vector<std::string> argumentsOfText(std::string const& text);

}  // namespace quen_3_1

#endif
