#include "app/name_list.h"

#include <string_view>

namespace quen_3_1::app_detail {

namespace {

std::size_t const kMostNames = 3;

// No empty name, no leading '-', no '=', ',' or blank anywhere.
bool isGoodName(std::string_view name) {
    if (name.empty() || name[0] == '-') {
        return false;
    }
    for (char const c : name) {
        if (c == '=' || c == ',' || c == ' ' || (c >= '\t' && c <= '\r')) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::vector<std::string> splitNameList(std::string const& text) {
    std::vector<std::string> names;
    std::string_view rest = text;
    while (true) {
        std::size_t const comma = rest.find(',');
        std::string_view const name = rest.substr(0, comma);
        if (!isGoodName(name) || names.size() == kMostNames) {
            return {};
        }
        if (names.empty()) {
            names.reserve(comma == std::string_view::npos ? 1 : kMostNames);
        }
        names.emplace_back(name);
        if (comma == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(comma + 1);
    }
    if (names.size() == kMostNames && names[2].size() > 2) {
        return {};
    }
    return names;
}

}  // namespace quen_3_1::app_detail
