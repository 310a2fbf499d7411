// "Did you mean" for unknown and ambiguous options. Users mistype whole
// names and abbreviate parts, so both distances are measured and the kinder
// one counts.
#include "extras/name_suggestions.h"

#include <algorithm>
#include <exception>
#include <set>

#include "extras/visible_names.h"
#include "frontend/basic_parser.h"
#include "quen_3_1/extras.h"
#include "recognizers/decomposed_name.h"

namespace quen_3_1 {

namespace {

// The last row of the table of edit costs between every prefix of `a` and
// every prefix of `b`, with neighbour swaps counted as one edit. A swap looks
// two rows back, so three rows are kept, whatever the lengths.
std::vector<std::size_t> lastEditRow(std::string const& a, std::string const& b) {
    std::vector<std::size_t> twoBack(b.size() + 1, 0);
    std::vector<std::size_t> previous(b.size() + 1, 0);
    std::vector<std::size_t> current(b.size() + 1, 0);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        current[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        twoBack.swap(previous);
        previous.swap(current);
        current[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t const substitution = previous[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            current[j] = std::min({previous[j] + 1, current[j - 1] + 1, substitution});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                current[j] = std::min(current[j], twoBack[j - 2] + 1);
            }
        }
    }
    return current;
}

}  // namespace

std::size_t editDistance(std::string const& a, std::string const& b) { return lastEditRow(a, b)[b.size()]; }

std::size_t abbreviationDistance(std::string const& typed, std::string const& full) {
    std::vector<std::size_t> const last = lastEditRow(typed, full);
    return *std::min_element(last.begin(), last.end());
}

std::size_t nameDistance(std::string const& typedText, std::string const& candidateText) {
    std::string const typed = typedText.substr(0, kComparedLength);
    std::string const candidate = candidateText.substr(0, kComparedLength);
    std::size_t distance = editDistance(typed, candidate);
    DecomposedName const typedParts(typed);
    DecomposedName const candidateParts(candidate);
    if (typedParts.parts.size() == candidateParts.parts.size()) {
        std::size_t partwise = 0;
        for (std::size_t j = 0; j < typedParts.parts.size(); ++j) {
            partwise += abbreviationDistance(typedParts.parts[j], candidateParts.parts[j]);
        }
        distance = std::min(distance, partwise);
    }
    return distance;
}

std::string typedOptionName(std::string const& argument) {
    std::size_t hyphens = 0;
    if (!argument.empty() && argument[0] == '-') {
        hyphens = argument.size() > 2 && argument[1] == '-' ? 2 : 1;
    }
    std::size_t const equals = argument.find('=');
    std::size_t const end = equals == std::string::npos ? argument.size() : equals;
    return end > hyphens ? argument.substr(hyphens, end - hyphens) : std::string();
}

std::vector<std::string> closestNames(RegisteredOptionStorage const& storage, std::string const& typed,
                                      std::size_t max) {
    std::vector<std::string> names;
    if (typed.empty() || max == 0) {
        return names;
    }
    std::size_t const reach = std::min(typed.size(), kComparedLength) / 3;
    std::vector<std::pair<std::size_t, std::string>> near;
    std::set<std::string> seen;
    for (VisibleName const& candidate : visibleNames(storage)) {
        std::size_t const distance = nameDistance(typed, candidate.name);
        if (distance <= reach && seen.insert(candidate.name).second) {
            near.emplace_back(distance, candidate.name);
        }
    }
    std::stable_sort(near.begin(), near.end(),
                     [](auto const& left, auto const& right) { return left.first < right.first; });
    for (std::size_t i = 0; i < near.size() && i < max; ++i) {
        names.push_back(near[i].second);
    }
    return names;
}

int suggestNames(IParser* parser, char const* typed, char const** out, int max) {
    BasicParser* basic = dynamic_cast<BasicParser*>(parser);
    if (basic == nullptr || typed == nullptr || out == nullptr || max <= 0) {
        return 0;
    }
    try {
        std::vector<std::string> const names =
            closestNames(basic->storage(), typedOptionName(typed), static_cast<std::size_t>(max));
        for (std::size_t i = 0; i < names.size(); ++i) {
            out[i] = basic->keeper().keep(names[i]);
        }
        return static_cast<int>(names.size());
    } catch (std::exception const&) {
        return 0;
    }
}

}  // namespace quen_3_1
