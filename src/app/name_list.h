// Name lists as App takes them ("jobs,j"): split and checked before the
// library sees them, so that it never refuses one (and never writes to stderr).
#ifndef QUEN_3_1_SRC_APP_NAME_LIST_H
#define QUEN_3_1_SRC_APP_NAME_LIST_H

#include <string>
#include <vector>

namespace quen_3_1::app_detail {

// The names of `text`; empty when the list breaks the rules (an empty name,
// a leading '-', '=' or a blank, more than three names, a long third name).
std::vector<std::string> splitNameList(std::string const& text);

// In the library's lookup a flag also answers to its name after this prefix.
constexpr char kNegation[] = "no-";

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_NAME_LIST_H
