// "Did you mean" for a mistyped command name: the declared names nearest to
// what was typed, by edit distance.
#ifndef QUEN_3_1_SRC_APP_COMMAND_SUGGESTION_H
#define QUEN_3_1_SRC_APP_COMMAND_SUGGESTION_H

#include <cstddef>
#include <string>
#include <vector>

namespace quen_3_1::app_detail {

// Edits (insert, delete, replace one character) that turn `a` into `b`; only
// the first kComparedLength characters of each count.
std::size_t commandDistance(std::string const& a, std::string const& b);

// At most `max` of `names` within a third of the typed length in edits, nearest
// first, declaration order among equals.
std::vector<std::string> nearCommands(std::string const& typed, std::vector<std::string> const& names, std::size_t max);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_COMMAND_SUGGESTION_H
