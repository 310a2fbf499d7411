#include "app/name_table.h"

#include <cstring>

namespace quen_3_1::app_detail {

namespace {

// Small enough for the allocator's quick bins, large enough for a few dozen names.
std::size_t const kFirstCapacity = 64;
std::size_t const kFirstText = 256;

std::uint64_t const kMultiplier = 0x9E3779B97F4A7C15ULL;

template <class Word>
Word load(char const* at) {
    Word word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
}

// Eight bytes at a time: names are short, so a few multiplications beat a
// byte-by-byte hash. The last word overlaps the one before rather than being
// read byte by byte (a copy of a variable length would be a call). The last
// shift brings the high bits down to the low ones that pick the slot.
std::size_t hashOf(std::string_view name) {
    char const* const data = name.data();
    std::size_t const size = name.size();
    std::uint64_t hash = size * kMultiplier;
    auto const mix = [&hash](std::uint64_t word) {
        hash = (hash ^ word) * kMultiplier;
        hash ^= hash >> 29U;
    };
    if (size >= sizeof(std::uint64_t)) {
        for (std::size_t at = 0; at + sizeof(std::uint64_t) < size; at += sizeof(std::uint64_t)) {
            mix(load<std::uint64_t>(data + at));
        }
        mix(load<std::uint64_t>(data + size - sizeof(std::uint64_t)));
    } else if (size >= sizeof(std::uint32_t)) {
        mix((std::uint64_t{load<std::uint32_t>(data)} << 32U) |
            load<std::uint32_t>(data + size - sizeof(std::uint32_t)));
    } else {
        std::uint64_t tail = 0;
        for (std::size_t at = 0; at < size; ++at) {
            tail = (tail << 8U) | static_cast<unsigned char>(data[at]);
        }
        mix(tail);
    }
    return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

// Whether the `size` bytes at `a` and `b` are the same. A name of eight to sixteen
// characters (most) is two overlapping words, compared without a call.
bool sameText(char const* a, char const* b, std::size_t size) {
    if (size < sizeof(std::uint64_t) || size > 2 * sizeof(std::uint64_t)) {
        return std::memcmp(a, b, size) == 0;
    }
    std::size_t const last = size - sizeof(std::uint64_t);
    return ((load<std::uint64_t>(a) ^ load<std::uint64_t>(b)) |
            (load<std::uint64_t>(a + last) ^ load<std::uint64_t>(b + last))) == 0;
}

}  // namespace

std::uint32_t NameTable::find(std::string_view name) const {
    return m_slots.empty() ? kNone : m_slots[slotOf(name, hashOf(name))].id;
}

std::uint32_t NameTable::insert(std::string_view name, std::uint32_t id) {
    // At most half full, so that a probe ends soon at an empty slot.
    if (2 * (m_used + 1) > m_slots.size()) {
        grow();
    }
    std::size_t const hash = hashOf(name);
    Slot& slot = m_slots[slotOf(name, hash)];
    if (slot.id != kNone) {
        return slot.id;
    }
    slot = Slot{id, static_cast<std::uint32_t>(m_text.size()), static_cast<std::uint32_t>(name.size()),
                static_cast<std::uint32_t>(hash)};
    m_text.append(name);
    ++m_used;
    return kNone;
}

void NameTable::update(std::string_view name, std::uint32_t id) { m_slots[slotOf(name, hashOf(name))].id = id; }

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

// A slot of another name is mostly passed on its hash alone.
std::size_t NameTable::slotOf(std::string_view name, std::size_t hash) const {
    std::size_t const mask = m_slots.size() - 1;
    auto const kept = static_cast<std::uint32_t>(hash);
    std::size_t i = hash & mask;
    for (;; i = (i + 1) & mask) {
        Slot const& slot = m_slots[i];
        if (slot.id == kNone || (slot.hash == kept && slot.size == name.size() &&
                                 sameText(m_text.data() + slot.offset, name.data(), name.size()))) {
            return i;
        }
    }
}

void NameTable::grow() {
    std::vector<Slot> old(m_slots.empty() ? kFirstCapacity : 2 * m_slots.size());
    old.swap(m_slots);
    if (old.empty()) {
        m_text.reserve(kFirstText);
    }
    for (Slot const& slot : old) {
        if (slot.id != kNone) {
            m_slots[slotOf(nameOf(slot), slot.hash)] = slot;
        }
    }
}

}  // namespace quen_3_1::app_detail
