// Candidate names, their scores against a typed name, and the choice of the
// best one. Equal best scores are always ambiguous, even for two names of
// one option: hosts rely on never getting a silent guess.
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

}  // namespace quen_3_1
