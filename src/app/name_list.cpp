#include "app/name_list.h"

namespace quen_3_1::app_detail {

namespace {

bool isGoodName(std::string const& name) {
    return !name.empty() && name[0] != '-' && name.find_first_of("=, \t\r\n\v\f") == std::string::npos;
}

}  // namespace

std::vector<std::string> splitNameList(std::string const& text) {
    std::vector<std::string> names;
    std::size_t start = 0;
    while (true) {
        std::size_t const comma = text.find(',', start);
        names.push_back(text.substr(start, comma == std::string::npos ? std::string::npos : comma - start));
        if (!isGoodName(names.back())) {
            return {};
        }
        if (comma == std::string::npos) {
            break;
        }
        start = comma + 1;
    }
    if (names.size() > 3 || (names.size() == 3 && names[2].size() > 2)) {
        return {};
    }
    return names;
}

std::vector<std::string> occupiedNames(std::vector<std::string> const& names, bool flag) {
    std::vector<std::string> occupied;
    for (std::string const& name : names) {
        occupied.push_back(name);
        if (flag) {
            occupied.push_back("no-" + name);
        }
    }
    return occupied;
}

}  // namespace quen_3_1::app_detail
