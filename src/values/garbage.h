#ifndef QUEN_3_1_VALUES_GARBAGE_H
#define QUEN_3_1_VALUES_GARBAGE_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "values/text_arena.h"

namespace quen_3_1 {

// Interns texts so that the plain pointers handed to hosts outlive the call
// that produced them. Texts are never removed; they die with the keeper,
// which its owner holds as a plain member.
class Garbage final {
public:
    Garbage() = default;
    Garbage(Garbage const&) = delete;
    Garbage& operator=(Garbage const&) = delete;
    ~Garbage() = default;

    // Stored copy of `text`; equal texts give the same pointer. Null gives "".
    virtual char const* init(char const* text);
    // Same for a text of known length (it may hold NUL characters).
    char const* keep(std::string_view text);
    // The number of distinct texts kept.
    std::size_t size() const { return m_count; }

private:
    // One interned text (its length is kept by the arena); a null `text`
    // marks a free slot.
    struct Slot {
        std::uint64_t hash;
        char const* text;
    };

    void grow();

    // Open addressing with linear probing over a power-of-two table, at most
    // half full. The copies live in the arena, so growing moves slots only.
    std::vector<Slot> m_strings;
    std::size_t m_count = 0;
    TextArena m_arena;
};

}  // namespace quen_3_1

#endif
