#include "app/command_suggestion.h"

#include <algorithm>
#include <utility>

namespace quen_3_1::app_detail {

namespace {

// Longer texts are compared by their start: a name is never that long, and
// the table stays small whatever a user types.
std::size_t const kComparedLength = 64;

}  // namespace

std::size_t commandDistance(std::string const& a, std::string const& b) {
    std::size_t const rows = std::min(a.size(), kComparedLength);
    std::size_t const columns = std::min(b.size(), kComparedLength);
    // Two rows of the table of costs between prefixes are enough.
    std::vector<std::size_t> previous(columns + 1);
    std::vector<std::size_t> current(columns + 1);
    for (std::size_t j = 0; j <= columns; ++j) {
        previous[j] = j;
    }
    for (std::size_t i = 1; i <= rows; ++i) {
        current[0] = i;
        for (std::size_t j = 1; j <= columns; ++j) {
            std::size_t const replace = previous[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            current[j] = std::min({previous[j] + 1, current[j - 1] + 1, replace});
        }
        previous.swap(current);
    }
    return previous[columns];
}

std::vector<std::string> nearCommands(std::string const& typed, std::vector<std::string> const& names,
                                      std::size_t max) {
    std::size_t const reach = std::min(typed.size(), kComparedLength) / 3;
    std::vector<std::pair<std::size_t, std::string>> near;
    for (std::string const& name : names) {
        std::size_t const distance = commandDistance(typed, name);
        if (distance <= reach) {
            near.emplace_back(distance, name);
        }
    }
    std::stable_sort(near.begin(), near.end(),
                     [](auto const& left, auto const& right) { return left.first < right.first; });
    std::vector<std::string> found;
    for (std::size_t i = 0; i < near.size() && i < max; ++i) {
        found.push_back(near[i].second);
    }
    return found;
}

}  // namespace quen_3_1::app_detail
