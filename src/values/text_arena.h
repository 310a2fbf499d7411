#ifndef QUEN_3_1_VALUES_TEXT_ARENA_H
#define QUEN_3_1_VALUES_TEXT_ARENA_H

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace quen_3_1 {

// Append-only storage for NUL-terminated copies of texts, each preceded by its
// length. Copies never move and are released together with the arena, so a
// keeper of many small texts pays one allocation per block instead of one per text.
class TextArena final {
public:
    TextArena() = default;
    TextArena(TextArena const&) = delete;
    TextArena& operator=(TextArena const&) = delete;

    // A copy of `text` followed by a NUL; valid as long as the arena.
    char const* copy(std::string_view text) { return copy(std::string_view(), text); }
    // A copy of `head` and `tail`, one after the other, followed by a NUL.
    char const* copy(std::string_view head, std::string_view tail);
    // Room for `size` characters, filled by the caller, valid as long as the
    // arena; not a copy that copied() can measure.
    char* place(std::size_t size) { return reserve(size); }
    // The text a pointer from copy() stands for, NUL characters included.
    static std::string_view copied(char const* copy);

private:
    char* reserve(std::size_t size);

    std::vector<std::unique_ptr<char[]>> m_blocks;
    char* m_free = nullptr;
    std::size_t m_left = 0;
    // The first block holds a parser's descriptions or a command line's kept
    // texts, and stays below the size from which the allocator leaves its
    // quick path.
    std::size_t m_nextBlock = 960;
};

}  // namespace quen_3_1

#endif
