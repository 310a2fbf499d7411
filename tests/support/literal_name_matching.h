// The straightforward form of abbreviation matching: every candidate name of
// the registry decomposed and scored against the typed name. The library
// matches through its name index; this is the reference that the
// differential test and fuzz target compare it with.
#ifndef QUEN_TESTS_SUPPORT_LITERAL_NAME_MATCHING_H
#define QUEN_TESTS_SUPPORT_LITERAL_NAME_MATCHING_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "options/name_index.h"
#include "options/registered_option_storage.h"
#include "recognizers/decomposed_name.h"
#include "recognizers/messages.h"
#include "recognizers/name_matching.h"

namespace quen_test {

// A candidate name that the typed name matches, with its score.
struct NameMatch {
    bool sameLength = false;
    std::int32_t score = 0;
    quen_3_1::DecomposedName name;
};

// The whole-list scan of names: candidate list, scores, and choice of the best.
class LiteralNameMatching {
public:
    // Every registered name in registration order, each boolean's "no-" form
    // right after its name. Appends to `names`.
    static void makeOptionNamesList(quen_3_1::RegisteredOptionStorage const& storage,
                                    std::vector<quen_3_1::DecomposedName>& names) {
        for (std::size_t i = 0; i < storage.size(); ++i) {
            quen_3_1::OptionDescription const& option = storage.at(i);
            for (std::string_view const name : option.names()) {
                names.emplace_back(std::string(name));
                if (option.type() == tarvo2::vt_bool) {
                    names.emplace_back("no-" + std::string(name));
                }
            }
        }
    }

    // Appends a record for every candidate the typed name matches: 2 per
    // equal part, 1 per proper prefix, no match on any other part.
    static void makeNameMatch(std::vector<NameMatch>& matches, quen_3_1::DecomposedName const& typed,
                              std::vector<quen_3_1::DecomposedName> const& names) {
        for (quen_3_1::DecomposedName const& candidate : names) {
            std::int32_t const score = scoreParts(typed, candidate);
            if (score != 0) {
                matches.push_back(NameMatch{typed.parts.size() == candidate.parts.size(), score, candidate});
            }
        }
    }

    // 0 with `best` set for a unique best same-length match, 1 when there is
    // none, 2 with `message` set when the best score is tied.
    int findBest(std::vector<NameMatch> const& matches, quen_3_1::DecomposedName& best, std::string& message) {
        m_bestMatches.clear();
        std::int32_t bestScore = 0;
        for (NameMatch const& match : matches) {
            if (!match.sameLength) {
                continue;
            }
            if (match.score > bestScore) {
                bestScore = match.score;
                m_bestMatches.assign(1, match);
            } else if (match.score == bestScore) {
                m_bestMatches.push_back(match);
            }
        }
        if (m_bestMatches.empty()) {
            return 1;
        }
        if (m_bestMatches.size() > 1) {
            message = "Ambiguous option, possible options are: " + listNames(m_bestMatches);
            return 2;
        }
        best = m_bestMatches.front().name;
        return 0;
    }

    // The best matches of the last findBest.
    std::vector<NameMatch> const& bestMatches() const { return m_bestMatches; }

    // 'a', 'b', 'c': the names of `matches` as messages list them.
    static std::string listNames(std::vector<NameMatch> const& matches) {
        std::string list;
        for (std::size_t i = 0; i < matches.size(); ++i) {
            list += "'" + matches[i].name.getName() + (i + 1 < matches.size() ? "', " : "'");
        }
        return list;
    }

private:
    static std::int32_t scoreParts(quen_3_1::DecomposedName const& typed, quen_3_1::DecomposedName const& candidate) {
        if (typed.parts.size() > candidate.parts.size()) {
            return 0;
        }
        std::int32_t score = 0;
        for (std::size_t j = 0; j < typed.parts.size(); ++j) {
            std::string const& part = typed.parts[j];
            std::string const& full = candidate.parts[j];
            if (part == full) {
                score += 2;
            } else if (full.compare(0, part.size(), part) == 0) {
                score += 1;
            } else {
                return 0;
            }
        }
        return score;
    }

    std::vector<NameMatch> m_bestMatches;
};

// The library's indexed choice in the reference's terms: the same codes,
// message and records, so that the two compare directly.
class IndexedNameMatching {
public:
    int findBestIndexed(quen_3_1::NameIndex const& index, std::string_view typed, std::size_t& best,
                        std::string& message) {
        std::vector<std::size_t> const& ids = m_matcher.find(index, typed);
        m_bestMatches.clear();
        for (std::size_t const id : ids) {
            m_bestMatches.push_back(
                NameMatch{true, m_matcher.score(), quen_3_1::DecomposedName(std::string(index.candidate(id).text))});
        }
        if (ids.empty()) {
            return 1;
        }
        if (ids.size() > 1) {
            message = quen_3_1::recognizer_messages::ambiguousCandidates(quen_3_1::listCandidates(index, ids));
            return 2;
        }
        best = ids.front();
        return 0;
    }

    std::vector<NameMatch> const& bestMatches() const { return m_bestMatches; }

private:
    quen_3_1::BestNameMatch m_matcher;
    std::vector<NameMatch> m_bestMatches;
};

// Same records, in the same order.
inline bool sameMatches(std::vector<NameMatch> const& a, std::vector<NameMatch> const& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].sameLength != b[i].sameLength || a[i].score != b[i].score || a[i].name.parts != b[i].name.parts) {
            return false;
        }
    }
    return true;
}

// The registry's lookup of one name through its index: 0 with `index` set
// to the first option answering to it, or 1.
inline int isAdded(quen_3_1::RegisteredOptionStorage const& storage, std::string const& name, unsigned long& index) {
    std::size_t const found = storage.names().firstNamed(name);
    if (found == quen_3_1::NameIndex::npos) {
        return 1;
    }
    index = storage.names().candidate(found).option;
    return 0;
}

}  // namespace quen_test

#endif
