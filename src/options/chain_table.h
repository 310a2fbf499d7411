#ifndef QUEN_3_1_OPTIONS_CHAIN_TABLE_H
#define QUEN_3_1_OPTIONS_CHAIN_TABLE_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "values/text_hash.h"

namespace quen_3_1 {

// The chains of candidates by their exact text: an open-addressing table
// (linear probing, at most half full) of 8-byte slots, each a part of the
// text's hash and the number of its chain; the chains themselves lie in a
// second array in the order their texts were added. A lookup of a new text
// reads one short run of slots, and a hundred thousand names need 2 MiB of
// slots, where slots holding the chains took three times that and left the
// caches much sooner. The texts are not copied: `textOf(id)` gives the text
// of the candidate `id`. Only declared names are ever added, so the table
// hashes with hashDeclaredName.
class ChainTable {
public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    struct Chain {
        std::size_t head;
        std::size_t tail;
    };

    // The chain of `text`, or null when no candidate has that text. `hash`
    // is hashDeclaredName(text), for a caller that hashes a text once.
    template <class TextOf>
    Chain const* find(std::string_view text, std::uint64_t hash, TextOf const& textOf) const {
        if (m_slots.empty()) {
            return nullptr;
        }
        Slot const& slot = m_slots[probe(text, hash, textOf)];
        return slot.entry == 0 ? nullptr : &m_entries[slot.entry - 1].chain;
    }
    template <class TextOf>
    Chain const* find(std::string_view text, TextOf const& textOf) const {
        return find(text, hashDeclaredName(text), textOf);
    }

    // The chain of `text`, an empty one (head npos) when it is new; the
    // caller links a candidate into a new chain before the next call.
    template <class TextOf>
    Chain& findOrAdd(std::string_view text, std::uint64_t hash, TextOf const& textOf) {
        if (2 * (m_entries.size() + 1) > m_slots.size()) {
            grow();
        }
        Slot& slot = m_slots[probe(text, hash, textOf)];
        if (slot.entry == 0) {
            m_entries.push_back(Entry{hash, Chain{npos, npos}});
            slot = Slot{tagOf(hash), static_cast<std::uint32_t>(m_entries.size())};
        }
        return m_entries[slot.entry - 1].chain;
    }
    template <class TextOf>
    Chain& findOrAdd(std::string_view text, TextOf const& textOf) {
        return findOrAdd(text, hashDeclaredName(text), textOf);
    }

private:
    // Every chain holds a candidate of at least one byte of text beside its
    // 24 bytes here, so memory runs out long before 2^32 chains.
    struct Slot {
        std::uint32_t tag = 0;    // the high half of the text's hash
        std::uint32_t entry = 0;  // 1 + the index of the chain's entry; 0: empty
    };
    struct Entry {
        std::uint64_t hash;  // kept for growing without reading the texts
        Chain chain;
    };

    // Room for the names of a few dozen options before the first growth.
    static constexpr std::size_t kFirstSlots = 64;

    static std::uint32_t tagOf(std::uint64_t hash) { return static_cast<std::uint32_t>(hash >> 32); }

    // The slot of `text`, or the empty slot where it would go.
    template <class TextOf>
    std::size_t probe(std::string_view text, std::uint64_t hash, TextOf const& textOf) const {
        std::size_t const mask = m_slots.size() - 1;
        std::uint32_t const tag = tagOf(hash);
        std::size_t at = static_cast<std::size_t>(hash) & mask;
        while (m_slots[at].entry != 0 &&
               (m_slots[at].tag != tag || textOf(m_entries[m_slots[at].entry - 1].chain.head) != text)) {
            at = (at + 1) & mask;
        }
        return at;
    }

    // Doubles the table; the entries are placed again by their kept hashes.
    // The entries get room for as many chains as the slots take, so that
    // they grow with the slots instead of one doubling at a time.
    void grow() {
        m_slots.assign(m_slots.empty() ? kFirstSlots : 2 * m_slots.size(), Slot());
        m_entries.reserve(m_slots.size() / 2);
        std::size_t const mask = m_slots.size() - 1;
        for (std::size_t index = 0; index < m_entries.size(); ++index) {
            std::uint64_t const hash = m_entries[index].hash;
            std::size_t at = static_cast<std::size_t>(hash) & mask;
            while (m_slots[at].entry != 0) {
                at = (at + 1) & mask;
            }
            m_slots[at] = Slot{tagOf(hash), static_cast<std::uint32_t>(index + 1)};
        }
    }

    std::vector<Slot> m_slots;
    std::vector<Entry> m_entries;  // by chain, in the order their texts were added
};

}  // namespace quen_3_1

#endif
