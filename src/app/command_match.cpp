#include "app/command_match.h"

namespace quen_3_1::app_detail {

namespace {

std::vector<std::string> partsOf(std::string const& name) {
    std::vector<std::string> parts(1);
    for (char c : name) {
        if (c == '-') {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

// 2 per exact part, 1 per prefix; 0 when a part does not match or the counts differ.
int score(std::vector<std::string> const& typed, std::vector<std::string> const& name) {
    if (typed.size() != name.size()) {
        return 0;
    }
    int total = 0;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (typed[i] == name[i]) {
            total += 2;
        } else if (name[i].compare(0, typed[i].size(), typed[i]) == 0) {
            total += 1;
        } else {
            return 0;
        }
    }
    return total;
}

}  // namespace

std::vector<std::string> matchCommand(std::string const& typed, std::vector<std::string> const& names) {
    std::vector<std::string> const typedParts = partsOf(typed);
    std::vector<std::string> best;
    int bestScore = 0;
    for (std::string const& name : names) {
        int const current = score(typedParts, partsOf(name));
        if (current > bestScore) {
            bestScore = current;
            best.assign(1, name);
        } else if (current == bestScore && current > 0) {
            best.push_back(name);
        }
    }
    return best;
}

}  // namespace quen_3_1::app_detail
