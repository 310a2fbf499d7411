#include "app/name_list.h"

#include <array>

namespace quen_3_1::app_detail {

namespace {

enum class Character : unsigned char { Plain, Separator, Refused };

// No '=' or blank anywhere in a name; ',' separates names.
constexpr std::array<Character, 256> characterTable() {
    std::array<Character, 256> table{};
    table[static_cast<unsigned char>(',')] = Character::Separator;
    for (char const c : {'=', ' ', '\t', '\n', '\v', '\f', '\r'}) {
        table[static_cast<unsigned char>(c)] = Character::Refused;
    }
    return table;
}

constexpr std::array<Character, 256> kCharacters = characterTable();

}  // namespace

// One pass over the text: each character is looked up once, and a name ends at a
// separator or at the end. No empty name and no leading '-'.
NameList NameList::split(std::string_view text) {
    NameList list;
    std::size_t start = 0;
    for (std::size_t at = 0;; ++at) {
        bool const end = at == text.size();
        Character const kind = end ? Character::Separator : kCharacters[static_cast<unsigned char>(text[at])];
        if (kind == Character::Plain) {
            continue;
        }
        if (kind == Character::Refused || at == start || text[start] == '-' || list.m_count == kMostNames) {
            return {};
        }
        list.m_places[list.m_count++] =
            Place{static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(at - start)};
        if (end) {
            break;
        }
        start = at + 1;
    }
    if (list.m_count == kMostNames && list.m_places[2].size > 2) {
        return {};
    }
    return list;
}

}  // namespace quen_3_1::app_detail
