#include "app/name_list.h"

namespace quen_3_1::app_detail {

namespace {

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

NameList NameList::split(std::string_view text) {
    NameList list;
    std::size_t offset = 0;
    while (true) {
        std::size_t const comma = text.find(',', offset);
        std::string_view const name = text.substr(offset, comma == std::string_view::npos ? comma : comma - offset);
        if (!isGoodName(name) || list.m_count == kMostNames) {
            return {};
        }
        list.m_places[list.m_count++] =
            Place{static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(name.size())};
        if (comma == std::string_view::npos) {
            break;
        }
        offset = comma + 1;
    }
    if (list.m_count == kMostNames && list.m_places[2].size > 2) {
        return {};
    }
    return list;
}

}  // namespace quen_3_1::app_detail
