#ifndef QUEN_3_1_FRONTEND_OPTION_TEXT_LINES_H
#define QUEN_3_1_FRONTEND_OPTION_TEXT_LINES_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quen_3_1 {

// The arguments of an option text, one per line: white space (as the global
// locale classifies it) skipped at the start, lines whose first other
// character is ';' or '#' dropped, trailing '\r' removed, empty lines dropped.
// Each as (start, size) within `text`; a line end, a removed '\r' or the end
// of the text follows each.
std::vector<std::pair<std::size_t, std::size_t>> argumentSpansOfText(std::string const& text);

}  // namespace quen_3_1

#endif
