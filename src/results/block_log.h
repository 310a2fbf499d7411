#ifndef QUEN_3_1_RESULTS_BLOCK_LOG_H
#define QUEN_3_1_RESULTS_BLOCK_LOG_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace quen_3_1 {

// Plain entries appended in blocks that double in size and never move:
// growing copies nothing, a long command line lives in a few large blocks,
// and an entry's index finds its block with one bit scan.
template <class Entry>
class BlockLog {
public:
    std::uint32_t size() const { return m_size; }

    Entry& operator[](std::uint32_t at) { return m_blocks[blockOf(at)][offsetIn(at)]; }
    Entry const& operator[](std::uint32_t at) const { return m_blocks[blockOf(at)][offsetIn(at)]; }

    // Makes room for one more entry, so that the next push cannot fail.
    void reserveOne() {
        if (m_size == m_capacity) {
            std::size_t const size = kFirstBlock << m_blocks.size();
            m_blocks.push_back(std::unique_ptr<Entry[]>(new Entry[size]));
            m_capacity += size;
        }
    }
    // Appends `entry`; its index.
    std::uint32_t push(Entry const& entry) {
        reserveOne();
        std::uint32_t const at = m_size;
        (*this)[at] = entry;
        ++m_size;
        return at;
    }

private:
    static constexpr unsigned kFirstBits = 5;
    static constexpr std::size_t kFirstBlock = std::size_t{1} << kFirstBits;

    // Block b holds the indexes from kFirstBlock * (2^b - 1) on.
    static unsigned highestBit(std::uint64_t shifted) { return 63U - static_cast<unsigned>(__builtin_clzll(shifted)); }
    static std::size_t blockOf(std::uint32_t at) { return highestBit(std::uint64_t{at} + kFirstBlock) - kFirstBits; }
    static std::size_t offsetIn(std::uint32_t at) {
        std::uint64_t const shifted = std::uint64_t{at} + kFirstBlock;
        return static_cast<std::size_t>(shifted - (std::uint64_t{1} << highestBit(shifted)));
    }

    std::vector<std::unique_ptr<Entry[]>> m_blocks;
    std::uint32_t m_size = 0;
    std::size_t m_capacity = 0;
};

}  // namespace quen_3_1

#endif
