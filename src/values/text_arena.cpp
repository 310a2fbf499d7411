#include "values/text_arena.h"

#include <algorithm>
#include <cstring>

namespace quen_3_1 {

namespace {

constexpr std::size_t kLargestBlock = std::size_t{64} * 1024;
// Room for the blocks of most arenas before their list grows.
constexpr std::size_t kFirstBlocks = 8;

}  // namespace

char const* TextArena::copy(std::string_view head, std::string_view tail) {
    std::size_t const size = head.size() + tail.size();
    char* const out = reserve(sizeof size + size + 1) + sizeof size;
    std::memcpy(out - sizeof size, &size, sizeof size);
    if (!head.empty()) {
        std::memcpy(out, head.data(), head.size());
    }
    if (!tail.empty()) {
        std::memcpy(out + head.size(), tail.data(), tail.size());
    }
    out[size] = '\0';
    return out;
}

std::string_view TextArena::copied(char const* copy) {
    std::size_t size = 0;
    std::memcpy(&size, copy - sizeof size, sizeof size);
    return std::string_view(copy, size);
}

// Blocks grow geometrically up to a cap; a text larger than a quarter of the
// next block gets a block of its own, leaving the current one in use.
char* TextArena::reserve(std::size_t size) {
    if (size <= m_left) {
        char* const out = m_free;
        m_free += size;
        m_left -= size;
        return out;
    }
    if (m_blocks.empty()) {
        m_blocks.reserve(kFirstBlocks);
    }
    if (size > m_nextBlock / 4) {
        m_blocks.push_back(std::unique_ptr<char[]>(new char[size]));
        return m_blocks.back().get();
    }
    m_blocks.push_back(std::unique_ptr<char[]>(new char[m_nextBlock]));
    m_free = m_blocks.back().get() + size;
    m_left = m_nextBlock - size;
    m_nextBlock = std::min(2 * m_nextBlock, kLargestBlock);
    return m_blocks.back().get();
}

}  // namespace quen_3_1
