#include "line_claims.h"

#include <functional>
#include <utility>

namespace quenopt {

void LineClaims::reserve(std::size_t count) {
    std::size_t slots = 16;
    while (slots < 2 * count) {
        slots *= 2;
    }
    if (slots > m_slots.size()) {
        grow(slots);
    }
}

int LineClaims::lineOf(std::string const& text) const {
    if (m_slots.empty()) {
        return 0;
    }
    return m_slots[find(text, std::hash<std::string>()(text))].line;
}

void LineClaims::claim(std::string const& text, int line) {
    if (2 * (m_used + 1) > m_slots.size()) {
        grow(m_slots.empty() ? 16 : 2 * m_slots.size());
    }
    std::size_t const hash = std::hash<std::string>()(text);
    Slot& slot = m_slots[find(text, hash)];
    if (slot.line == 0) {
        slot.hash = hash;
        slot.line = line;
        slot.text = text;
        ++m_used;
    }
}

// The slot holding `text`, or the empty slot where it would go.
std::size_t LineClaims::find(std::string const& text, std::size_t hash) const {
    std::size_t const mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].line != 0 && (m_slots[at].hash != hash || m_slots[at].text != text)) {
        at = (at + 1) & mask;
    }
    return at;
}

// Moves every claim to a table of `slots` slots (a power of two) by its kept hash.
void LineClaims::grow(std::size_t slots) {
    std::vector<Slot> old(slots);
    old.swap(m_slots);
    std::size_t const mask = m_slots.size() - 1;
    for (Slot& slot : old) {
        if (slot.line == 0) {
            continue;
        }
        std::size_t at = slot.hash & mask;
        while (m_slots[at].line != 0) {
            at = (at + 1) & mask;
        }
        m_slots[at] = std::move(slot);
    }
}

}  // namespace quenopt
