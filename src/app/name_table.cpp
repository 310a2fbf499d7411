#include "app/name_table.h"

#include <cstring>

namespace quen_3_1::app_detail {

namespace {

// Small enough for the allocator's quick bins, large enough for a few dozen names.
std::size_t const kFirstCapacity = 64;
std::size_t const kFirstText = 256;

std::uint64_t const kMultiplier = 0x9E3779B97F4A7C15ULL;

// Eight bytes at a time: names are short, so a few multiplications beat a
// byte-by-byte hash. The last shift brings the high bits down to the low ones
// that pick the slot.
std::size_t hashOf(std::string_view name) {
    std::uint64_t hash = name.size() * kMultiplier;
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= name.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, name.data() + at, sizeof word);
        hash = (hash ^ word) * kMultiplier;
        hash ^= hash >> 29U;
    }
    // The last bytes one by one: a copy of a variable length would be a call.
    std::uint64_t tail = 0;
    for (; at < name.size(); ++at) {
        tail = (tail << 8U) | static_cast<unsigned char>(name[at]);
    }
    hash = (hash ^ tail) * kMultiplier;
    return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

}  // namespace

std::uint32_t NameTable::find(std::string_view name) const {
    return m_slots.empty() ? kNone : m_slots[slotOf(name)].id;
}

std::uint32_t NameTable::insert(std::string_view name, std::uint32_t id) {
    // At most half full, so that a probe ends soon at an empty slot.
    if (2 * (m_used + 1) > m_slots.size()) {
        grow();
    }
    Slot& slot = m_slots[slotOf(name)];
    if (slot.id != kNone) {
        return slot.id;
    }
    slot = Slot{id, static_cast<std::uint32_t>(m_text.size()), static_cast<std::uint32_t>(name.size())};
    m_text.append(name);
    ++m_used;
    return kNone;
}

void NameTable::update(std::string_view name, std::uint32_t id) { m_slots[slotOf(name)].id = id; }

// Names are appended to the text as they are inserted: the first is the one placed first.
std::string_view NameTable::firstNameOf(std::uint32_t id) const {
    Slot const* first = nullptr;
    for (Slot const& slot : m_slots) {
        if (slot.id == id && (first == nullptr || slot.offset < first->offset)) {
            first = &slot;
        }
    }
    return first == nullptr ? std::string_view() : nameOf(*first);
}

std::size_t NameTable::slotOf(std::string_view name) const {
    std::size_t const mask = m_slots.size() - 1;
    std::size_t i = hashOf(name) & mask;
    while (m_slots[i].id != kNone && nameOf(m_slots[i]) != name) {
        i = (i + 1) & mask;
    }
    return i;
}

void NameTable::grow() {
    std::vector<Slot> old(m_slots.empty() ? kFirstCapacity : 2 * m_slots.size());
    old.swap(m_slots);
    if (old.empty()) {
        m_text.reserve(kFirstText);
    }
    for (Slot const& slot : old) {
        if (slot.id != kNone) {
            m_slots[slotOf(nameOf(slot))] = slot;
        }
    }
}

}  // namespace quen_3_1::app_detail
