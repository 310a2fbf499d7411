#include "values/garbage.h"

#include "values/text_hash.h"

namespace quen_3_1 {

namespace {

// Room for the names of a command line's options (the events of a parse keep one each)
// before the table first grows.
constexpr std::size_t kFirstCapacity = 32;

}  // namespace

char const* Garbage::init(char const* text) {
    static char const empty[] = "";
    if (text == nullptr) {
        return empty;
    }
    return keep(std::string_view(text));
}

char const* Garbage::keep(std::string_view text) {
    if (2 * (m_count + 1) > m_strings.size()) {
        grow();
    }
    std::uint64_t const hash = hashText(text);
    std::size_t const mask = m_strings.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        Slot& slot = m_strings[i];
        if (slot.text == nullptr) {
            slot = Slot{hash, m_arena.copy(text)};
            ++m_count;
            return slot.text;
        }
        if (slot.hash == hash && TextArena::copied(slot.text) == text) {
            return slot.text;
        }
    }
}

void Garbage::grow() {
    std::vector<Slot> old(m_strings.empty() ? kFirstCapacity : 2 * m_strings.size(), Slot{0, nullptr});
    old.swap(m_strings);
    std::size_t const mask = m_strings.size() - 1;
    for (Slot const& slot : old) {
        if (slot.text == nullptr) {
            continue;
        }
        std::size_t i = slot.hash & mask;
        while (m_strings[i].text != nullptr) {
            i = (i + 1) & mask;
        }
        m_strings[i] = slot;
    }
}

}  // namespace quen_3_1
