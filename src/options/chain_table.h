#ifndef QUEN_3_1_OPTIONS_CHAIN_TABLE_H
#define QUEN_3_1_OPTIONS_CHAIN_TABLE_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "values/text_hash.h"

namespace quen_3_1 {

// The chains of candidates by their exact text: an open-addressing table
// (linear probing, at most half full) whose slots hold the text's hash and
// the chain, so that a lookup touches one run of adjacent slots instead of a
// list of nodes spread over the heap; registering a hundred thousand names
// then stays as cheap per name as registering a thousand. The texts are
// not copied: `textOf(id)` gives the text of the candidate `id`.
class ChainTable {
public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    struct Chain {
        std::size_t head;
        std::size_t tail;
    };

    // The chain of `text`, or null when no candidate has that text.
    template <class TextOf>
    Chain const* find(std::string_view text, TextOf const& textOf) const {
        if (m_slots.empty()) {
            return nullptr;
        }
        Slot const& slot = m_slots[probe(text, hashText(text), textOf)];
        return slot.chain.head == npos ? nullptr : &slot.chain;
    }

    // The chain of `text`, an empty one (head npos) when it is new; the
    // caller links a candidate into a new chain before the next call.
    template <class TextOf>
    Chain& findOrAdd(std::string_view text, TextOf const& textOf) {
        if (2 * (m_used + 1) > m_slots.size()) {
            grow();
        }
        std::uint64_t const hash = hashText(text);
        Slot& slot = m_slots[probe(text, hash, textOf)];
        if (slot.chain.head == npos) {
            slot.hash = hash;
            ++m_used;
        }
        return slot.chain;
    }

private:
    struct Slot {
        std::uint64_t hash = 0;
        Chain chain{npos, npos};
    };

    // The slot of `text`, or the empty slot where it would go.
    template <class TextOf>
    std::size_t probe(std::string_view text, std::uint64_t hash, TextOf const& textOf) const {
        std::size_t const mask = m_slots.size() - 1;
        std::size_t at = static_cast<std::size_t>(hash) & mask;
        while (m_slots[at].chain.head != npos && (m_slots[at].hash != hash || textOf(m_slots[at].chain.head) != text)) {
            at = (at + 1) & mask;
        }
        return at;
    }

    // Doubles the table; slots move by their kept hash, no text is read.
    void grow() {
        std::vector<Slot> old(m_slots.empty() ? 16 : 2 * m_slots.size());
        old.swap(m_slots);
        std::size_t const mask = m_slots.size() - 1;
        for (Slot const& slot : old) {
            if (slot.chain.head == npos) {
                continue;
            }
            std::size_t at = static_cast<std::size_t>(slot.hash) & mask;
            while (m_slots[at].chain.head != npos) {
                at = (at + 1) & mask;
            }
            m_slots[at] = slot;
        }
    }

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
};

}  // namespace quen_3_1

#endif
