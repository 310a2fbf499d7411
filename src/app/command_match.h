// Command names abbreviated as option names are: the same number of hyphen
// parts, each typed part a prefix, exact parts scoring more; a tie is ambiguous.
#ifndef QUEN_3_1_SRC_APP_COMMAND_MATCH_H
#define QUEN_3_1_SRC_APP_COMMAND_MATCH_H

#include <string>
#include <vector>

namespace quen_3_1::app_detail {

// The best-scoring names among `names` for `typed`: none, one, or the tied ones.
std::vector<std::string> matchCommand(std::string const& typed, std::vector<std::string> const& names);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_COMMAND_MATCH_H
