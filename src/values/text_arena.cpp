#include "values/text_arena.h"

#include <cstring>

namespace quen_3_1 {

namespace {

constexpr std::size_t kLargestBlock = 64 * 1024;

}  // namespace

char const* TextArena::copy(std::string_view text) {
    char* const out = reserve(text.size() + 1);
    if (!text.empty()) {
        std::memcpy(out, text.data(), text.size());
    }
    out[text.size()] = '\0';
    return out;
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
    if (size > m_nextBlock / 4) {
        m_blocks.push_back(std::unique_ptr<char[]>(new char[size]));
        return m_blocks.back().get();
    }
    m_blocks.push_back(std::unique_ptr<char[]>(new char[m_nextBlock]));
    m_free = m_blocks.back().get() + size;
    m_left = m_nextBlock - size;
    if (m_nextBlock < kLargestBlock) {
        m_nextBlock *= 2;
    }
    return m_blocks.back().get();
}

}  // namespace quen_3_1
