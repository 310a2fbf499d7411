#include "app/name_list.h"

#include <array>
#include <cstdint>
#include <cstring>

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

constexpr std::uint64_t kEveryByte = 0x0101010101010101ULL;
constexpr std::uint64_t kHighBits = 0x8080808080808080ULL;

// Whether a byte of `word` is below '!' (a blank among them), a ',' or an '=': eight
// characters tested at once, exactly (the high bits only mark that some byte is one).
bool mayEndName(std::uint64_t word) {
    auto const hasZero = [](std::uint64_t x) { return (x - kEveryByte) & ~x & kHighBits; };
    std::uint64_t const below = (word - kEveryByte * '!') & ~word & kHighBits;
    return (below | hasZero(word ^ (kEveryByte * ',')) | hasZero(word ^ (kEveryByte * '='))) != 0;
}

// A list of one long name, the usual case, has none of those characters: read a word at a
// time, the last word overlapping the one before.
bool isOneCleanName(std::string_view text) {
    if (text.size() < sizeof(std::uint64_t) || text[0] == '-') {
        return false;
    }
    std::uint64_t word = 0;
    for (std::size_t at = 0; at + sizeof word < text.size(); at += sizeof word) {
        std::memcpy(&word, text.data() + at, sizeof word);
        if (mayEndName(word)) {
            return false;
        }
    }
    std::memcpy(&word, text.data() + text.size() - sizeof word, sizeof word);
    return !mayEndName(word);
}

}  // namespace

// Every path returns the same object, built where the caller wants it: a list copied out
// through the stack was read back as one wide word over narrower stores just made.
NameList NameList::split(std::string_view text) {
    NameList list;
    if (isOneCleanName(text)) {
        list.m_places[0] = Place{0, static_cast<std::uint32_t>(text.size())};
        list.m_count = 1;
    } else if (!list.splitEach(text)) {
        list.m_count = 0;
    }
    return list;
}

// One pass over the text: each character is looked up once, and a name ends at a
// separator or at the end. No empty name and no leading '-'.
bool NameList::splitEach(std::string_view text) {
    std::size_t start = 0;
    for (std::size_t at = 0;; ++at) {
        bool const end = at == text.size();
        Character const kind = end ? Character::Separator : kCharacters[static_cast<unsigned char>(text[at])];
        if (kind == Character::Plain) {
            continue;
        }
        if (kind == Character::Refused || at == start || text[start] == '-' || m_count == kMostNames) {
            return false;
        }
        m_places[m_count++] = Place{static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(at - start)};
        if (end) {
            break;
        }
        start = at + 1;
    }
    return m_count != kMostNames || m_places[2].size <= 2;
}

}  // namespace quen_3_1::app_detail
