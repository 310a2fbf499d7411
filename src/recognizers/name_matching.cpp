// Candidate names, their scores against a typed name, and the choice of the
// best one. Equal best scores are always ambiguous, even for two names of
// one option: hosts rely on never getting a silent guess.
#include "options/name_index.h"
#include "options/registered_option_storage.h"
#include "recognizers/abbreviation_parser.h"

namespace quen_3_1 {

namespace {

std::int32_t scoreParts(DecomposedName const& typed, DecomposedName const& candidate) {
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

// scoreParts for a typed name split into `typed` and a candidate of as many
// parts held whole.
std::int32_t scoreText(std::vector<std::string_view> const& typed, std::string_view candidate) {
    std::int32_t score = 0;
    std::size_t start = 0;
    for (std::string_view const part : typed) {
        std::size_t const hyphen = candidate.find('-', start);
        std::string_view const full =
            candidate.substr(start, hyphen == std::string_view::npos ? std::string_view::npos : hyphen - start);
        if (part == full) {
            score += 2;
        } else if (full.size() >= part.size() && full.compare(0, part.size(), part) == 0) {
            score += 1;
        } else {
            return 0;
        }
        start = hyphen + 1;
    }
    return score;
}

void splitParts(std::string_view whole, std::vector<std::string_view>& parts) {
    parts.clear();
    std::size_t start = 0;
    for (;;) {
        std::size_t const hyphen = whole.find('-', start);
        if (hyphen == std::string_view::npos) {
            parts.push_back(whole.substr(start));
            return;
        }
        parts.push_back(whole.substr(start, hyphen - start));
        start = hyphen + 1;
    }
}

}  // namespace

std::string AbbreviationParser::listNames(std::vector<NameMatch> const& matches) {
    std::string list;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        list += "'" + matches[i].name.getName() + (i + 1 < matches.size() ? "', " : "'");
    }
    return list;
}

void AbbreviationParser::makeOptionNamesList(RegisteredOptionStorage& storage, std::vector<DecomposedName>& names) {
    for (std::size_t i = 0; i < storage.size(); ++i) {
        OptionDescription const& option = storage.at(i);
        for (std::string const& name : option.names()) {
            names.emplace_back(name);
            if (option.type() == tarvo2::vt_bool) {
                names.emplace_back("no-" + name);
            }
        }
    }
}

void AbbreviationParser::makeNameMatch(std::vector<NameMatch>& matches, DecomposedName const& typed,
                                       std::vector<DecomposedName> const& names) {
    for (DecomposedName const& candidate : names) {
        std::int32_t const score = scoreParts(typed, candidate);
        if (score != 0) {
            matches.push_back(NameMatch{typed.parts.size() == candidate.parts.size(), score, candidate});
        }
    }
}

int AbbreviationParser::findBest(std::vector<NameMatch> const& matches, DecomposedName& best, std::string& message) {
    m_pendingIndex = nullptr;
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

int AbbreviationParser::findBestIndexed(NameIndex const& index, std::string_view typed, std::size_t& best,
                                        std::string& message) {
    splitParts(typed, m_typedParts);
    m_bestIds.clear();
    std::int32_t bestScore = 0;
    std::size_t const exact = index.firstNamed(typed);
    if (exact != NameIndex::npos) {
        for (std::size_t id = exact; id != NameIndex::npos; id = index.nextNamed(id)) {
            m_bestIds.push_back(id);
        }
        bestScore = static_cast<std::int32_t>(2 * m_typedParts.size());
    } else {
        m_shaped.clear();
        index.withShape(m_typedParts.size(), m_typedParts.front(), m_shaped);
        for (std::size_t const id : m_shaped) {
            std::int32_t const score = scoreText(m_typedParts, index.candidate(id).text);
            if (score == 0) {
                continue;
            }
            if (score > bestScore) {
                bestScore = score;
                m_bestIds.assign(1, id);
            } else if (score == bestScore) {
                m_bestIds.push_back(id);
            }
        }
    }
    m_bestScore = bestScore;
    m_pendingIndex = &index;
    if (m_bestIds.empty()) {
        return 1;
    }
    if (m_bestIds.size() > 1) {
        message = "Ambiguous option, possible options are: " + listNames(bestMatches());
        return 2;
    }
    best = m_bestIds.front();
    return 0;
}

std::vector<AbbreviationParser::NameMatch> const& AbbreviationParser::bestMatches() const {
    if (m_pendingIndex != nullptr) {
        m_bestMatches.resize(m_bestIds.size());
        for (std::size_t i = 0; i < m_bestIds.size(); ++i) {
            m_bestMatches[i].sameLength = true;
            m_bestMatches[i].score = m_bestScore;
            m_bestMatches[i].name.assign(m_pendingIndex->candidate(m_bestIds[i]).text);
        }
        m_pendingIndex = nullptr;
    }
    return m_bestMatches;
}

}  // namespace quen_3_1
