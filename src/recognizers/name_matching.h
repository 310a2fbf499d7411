#ifndef QUEN_3_1_RECOGNIZERS_NAME_MATCHING_H
#define QUEN_3_1_RECOGNIZERS_NAME_MATCHING_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quen_3_1 {

class NameIndex;

// The choice of the candidate names a typed name stands for. A candidate
// with as many parts scores 2 per equal part and 1 per proper prefix, and
// no score at all when any part is neither; the best score wins. Equal best
// scores are always ambiguous, even for two names of one option: hosts rely
// on never getting a silent guess.
class BestNameMatch {
public:
    // The best candidates of `index` for `typed`, in candidate-list order:
    // none, the unique winner, or the tied ones.
    std::vector<std::size_t> const& find(NameIndex const& index, std::string_view typed);
    // The score the candidates of the last find share.
    std::int32_t score() const { return m_score; }

private:
    std::vector<std::string_view> m_typedParts;
    std::vector<std::size_t> m_shaped;
    std::vector<std::size_t> m_best;
    std::int32_t m_score = 0;
};

// 'a', 'b', 'c': the candidates' names as messages list them.
std::string listCandidates(NameIndex const& index, std::vector<std::size_t> const& ids);

}  // namespace quen_3_1

#endif
