#include "recognizers/name_matching.h"

#include "options/name_index.h"

namespace quen_3_1 {

namespace {

// The score of a candidate with as many parts as `typed`, held whole.
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

// Only candidates with as many parts and a first part that the typed first
// part begins can score, and a candidate equal to the typed name beats
// every other, so the index narrows the search to those.
std::vector<std::size_t> const& BestNameMatch::find(NameIndex const& index, std::string_view typed) {
    m_best.clear();
    m_score = 0;
    std::size_t const exact = index.firstNamed(typed);
    if (exact != NameIndex::npos) {
        for (std::size_t id = exact; id != NameIndex::npos; id = index.nextNamed(id)) {
            m_best.push_back(id);
        }
        // Every part equal: 2 per part. The candidate has the typed text, so
        // its parts, counted when it was declared, are the typed ones.
        m_score = static_cast<std::int32_t>(2 * index.candidate(exact).parts);
        return m_best;
    }
    splitParts(typed, m_typedParts);
    m_shaped.clear();
    index.withShape(m_typedParts.size(), m_typedParts.front(), m_shaped);
    for (std::size_t const id : m_shaped) {
        std::int32_t const score = scoreText(m_typedParts, index.candidate(id).text);
        if (score == 0) {
            continue;
        }
        if (score > m_score) {
            m_score = score;
            m_best.assign(1, id);
        } else if (score == m_score) {
            m_best.push_back(id);
        }
    }
    return m_best;
}

std::string listCandidates(NameIndex const& index, std::vector<std::size_t> const& ids) {
    std::string list;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        list += "'";
        list += index.candidate(ids[i]).text;
        list += i + 1 < ids.size() ? "', " : "'";
    }
    return list;
}

}  // namespace quen_3_1
