#include "line_claims.h"

#include <limits>
#include <stdexcept>

#include "values/text_hash.h"

namespace quenopt {

void LineClaims::reserve(std::size_t count) {
    std::size_t slots = 16;
    while (slots < 2 * count) {
        slots *= 2;
    }
    if (slots > m_slots.size()) {
        grow(slots);
    }
    m_ends.reserve(count);
    m_lines.reserve(count);
}

void LineClaims::prefetch(std::uint64_t hash) const {
    if (!m_slots.empty()) {
        __builtin_prefetch(&m_slots[static_cast<std::size_t>(hash) & (m_slots.size() - 1)]);
    }
}

int LineClaims::lineOf(std::string_view text, std::uint64_t hash) const {
    if (m_slots.empty()) {
        return 0;
    }
    Slot const& slot = m_slots[find(text, hash)];
    return slot.claim == 0 ? 0 : m_lines[slot.claim - 1];
}

void LineClaims::claim(std::string_view text, std::uint64_t hash, int line) {
    if (2 * (m_lines.size() + 1) > m_slots.size()) {
        grow(m_slots.empty() ? 16 : 2 * m_slots.size());
    }
    std::size_t const at = find(text, hash);
    if (m_slots[at].claim != 0) {
        return;
    }
    if (m_lines.size() >= std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("too many names in the table");
    }
    m_texts.append(text);
    m_ends.push_back(m_texts.size());
    m_lines.push_back(line);
    m_slots[at] = Slot{static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(m_lines.size())};
}

// The library's keyed hash, so that no table can be made to collide on purpose.
std::uint64_t LineClaims::hashOf(std::string_view text) { return quen_3_1::hashText(text); }

std::string_view LineClaims::textOf(std::size_t claim) const {
    std::size_t const begin = claim == 0 ? 0 : m_ends[claim - 1];
    return std::string_view(m_texts).substr(begin, m_ends[claim] - begin);
}

// The slot holding `text`, or the empty slot where it would go.
std::size_t LineClaims::find(std::string_view text, std::uint64_t hash) const {
    std::size_t const mask = m_slots.size() - 1;
    auto const tag = static_cast<std::uint32_t>(hash >> 32);
    std::size_t at = static_cast<std::size_t>(hash) & mask;
    while (m_slots[at].claim != 0 && (m_slots[at].tag != tag || textOf(m_slots[at].claim - 1) != text)) {
        at = (at + 1) & mask;
    }
    return at;
}

// Puts a claim known to be absent into the first free slot of its run.
void LineClaims::place(std::uint64_t hash, std::uint32_t claim) {
    std::size_t const mask = m_slots.size() - 1;
    std::size_t at = static_cast<std::size_t>(hash) & mask;
    while (m_slots[at].claim != 0) {
        at = (at + 1) & mask;
    }
    m_slots[at] = Slot{static_cast<std::uint32_t>(hash >> 32), claim};
}

// Moves every claim to a table of `slots` slots (a power of two); the hashes
// are computed again from the store, read from end to end.
void LineClaims::grow(std::size_t slots) {
    m_slots.assign(slots, Slot());
    for (std::size_t claim = 0; claim < m_lines.size(); ++claim) {
        place(hashOf(textOf(claim)), static_cast<std::uint32_t>(claim + 1));
    }
}

}  // namespace quenopt
