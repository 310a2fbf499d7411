#ifndef QUEN_3_1_OPTIONS_STABLE_LIST_H
#define QUEN_3_1_OPTIONS_STABLE_LIST_H

#include <cstddef>
#include <new>
#include <utility>
#include <vector>

namespace quen_3_1 {

// An append-only list whose elements never move, so that pointers handed out
// and views of their texts stay valid. Elements lie in blocks of a fixed
// number of them: a parser's options take a few allocations where a deque of
// such large elements took one per element. A block stays below the size
// from which the allocator leaves its quick path (and first gathers every
// small free chunk), so a small parser never pays for that.
template <class T>
class StableList {
public:
    StableList() = default;
    StableList(StableList const&) = delete;
    StableList& operator=(StableList const&) = delete;
    ~StableList() {
        for (std::size_t i = 0; i < m_size; ++i) {
            (*this)[i].~T();
        }
        for (T* const block : m_blocks) {
            ::operator delete(block);
        }
    }

    template <class... Args>
    T& emplace_back(Args&&... args) {
        if (m_size == m_blocks.size() * kPerBlock) {
            addBlock();
        }
        T* const at = m_blocks[m_size / kPerBlock] + m_size % kPerBlock;
        ::new (static_cast<void*>(at)) T{std::forward<Args>(args)...};
        ++m_size;
        return *at;
    }

    T& operator[](std::size_t index) { return m_blocks[index / kPerBlock][index % kPerBlock]; }
    T const& operator[](std::size_t index) const { return m_blocks[index / kPerBlock][index % kPerBlock]; }
    T& back() { return (*this)[m_size - 1]; }
    T const& back() const { return (*this)[m_size - 1]; }
    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }

private:
    static constexpr std::size_t kBlockBytes = 960;
    static constexpr std::size_t kPerBlock = sizeof(T) >= kBlockBytes ? 1 : kBlockBytes / sizeof(T);
    // Room for the blocks of a few dozen options before the list of blocks grows.
    static constexpr std::size_t kFirstBlocks = 8;

    // A failed allocation leaves the list as it was.
    void addBlock() {
        if (m_blocks.empty()) {
            m_blocks.reserve(kFirstBlocks);
        }
        auto* const block = static_cast<T*>(::operator new(sizeof(T) * kPerBlock));
        try {
            m_blocks.push_back(block);
        } catch (...) {
            ::operator delete(block);
            throw;
        }
    }

    std::vector<T*> m_blocks;
    std::size_t m_size = 0;
};

}  // namespace quen_3_1

#endif
