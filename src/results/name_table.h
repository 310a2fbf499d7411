#ifndef QUEN_3_1_RESULTS_NAME_TABLE_H
#define QUEN_3_1_RESULTS_NAME_TABLE_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "values/text_hash.h"

namespace quen_3_1 {

// The names a result knows, each with its entry. Entries live in a deque and
// never move, so a pointer to one stays valid as the table grows; they are
// found through open addressing with linear probing over (hash, entry)
// slots, at most half full. A lookup builds no string and a new name costs no
// allocation of its own beside its text. Only declared names are ever added
// (a typed name is only looked up), so the cheaper declared-name hash serves.
template <class Entry>
class NameTable {
public:
    // The entry of `name`; null when the name is unknown.
    Entry* find(std::string_view name) { return entryAt(probe(name, hashDeclaredName(name))); }
    Entry const* find(std::string_view name) const { return entryAt(probe(name, hashDeclaredName(name))); }

    // The entry of `name`, a copy of `fresh` when the name is new; true when added.
    std::pair<Entry*, bool> findOrAdd(std::string_view name, Entry const& fresh) {
        if (2 * (m_named.size() + 1) > m_slots.size()) {
            grow();
        }
        std::uint64_t const hash = hashDeclaredName(name);
        std::size_t const at = probe(name, hash);
        if (m_slots[at].named != nullptr) {
            return {&m_slots[at].named->second, false};
        }
        m_named.emplace_back(std::piecewise_construct, std::forward_as_tuple(name), std::forward_as_tuple(fresh));
        m_slots[at] = Slot{hash, &m_named.back()};
        return {&m_named.back().second, true};
    }

    // Throws std::out_of_range for an unknown name.
    Entry const& at(std::string_view name) const {
        Entry const* const found = find(name);
        if (found == nullptr) {
            throw std::out_of_range("NameTable::at");
        }
        return *found;
    }
    std::size_t count(std::string_view name) const { return find(name) == nullptr ? 0 : 1; }
    std::size_t size() const { return m_named.size(); }
    bool empty() const { return m_named.empty(); }

private:
    using Named = std::pair<std::string, Entry>;

    static constexpr std::size_t kNoSlot = static_cast<std::size_t>(-1);
    static constexpr std::size_t kFirstCapacity = 64;

    struct Slot {
        std::uint64_t hash;
        Named* named;  // null for a free slot
    };

    // The slot holding `name`, else the free slot where it would go; kNoSlot
    // while the table has no slots.
    std::size_t probe(std::string_view name, std::uint64_t hash) const {
        if (m_slots.empty()) {
            return kNoSlot;
        }
        std::size_t const mask = m_slots.size() - 1;
        for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
            Slot const& slot = m_slots[i];
            if (slot.named == nullptr || (slot.hash == hash && slot.named->first == name)) {
                return i;
            }
        }
    }

    Entry* entryAt(std::size_t slot) const {
        return slot == kNoSlot || m_slots[slot].named == nullptr ? nullptr : &m_slots[slot].named->second;
    }

    void grow() {
        std::vector<Slot> old(m_slots.empty() ? kFirstCapacity : 2 * m_slots.size(), Slot{0, nullptr});
        old.swap(m_slots);
        std::size_t const mask = m_slots.size() - 1;
        for (Slot const& slot : old) {
            if (slot.named == nullptr) {
                continue;
            }
            std::size_t i = slot.hash & mask;
            while (m_slots[i].named != nullptr) {
                i = (i + 1) & mask;
            }
            m_slots[i] = slot;
        }
    }

    std::vector<Slot> m_slots;
    std::deque<Named> m_named;
};

}  // namespace quen_3_1

#endif
