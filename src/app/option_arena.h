// Room for an App's declarations and their help texts: a few blocks, each
// holding several of them, instead of one allocation per declaration. A declaration stays where it was
// made (the host holds a reference to its Option) until the App goes.
#ifndef QUEN_3_1_SRC_APP_OPTION_ARENA_H
#define QUEN_3_1_SRC_APP_OPTION_ARENA_H

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace quen_3_1::app_detail {

class OptionArena {
public:
    // Ends the life of an object made by make(); its room is released with the arena.
    struct Destroy {
        template <class T>
        void operator()(T* object) const {
            object->~T();
        }
    };
    template <class T>
    using Handle = std::unique_ptr<T, Destroy>;

    OptionArena() = default;
    OptionArena(OptionArena const&) = delete;
    OptionArena& operator=(OptionArena const&) = delete;
    ~OptionArena() = default;

    template <class T, class... Args>
    Handle<T> make(Args&&... args) {
        static_assert(alignof(T) <= alignof(std::max_align_t), "the blocks are aligned for any scalar");
        return Handle<T>(new (allocate(sizeof(T))) T(std::forward<Args>(args)...));
    }

    // A copy of `text`, ended by a NUL, that lives as long as the arena.
    char const* copy(std::string_view text) {
        auto* const room = static_cast<char*>(allocate(text.size() + 1));
        text.copy(room, text.size());
        room[text.size()] = '\0';
        return room;
    }

private:
    // Under the allocator's large requests (1,024 bytes), which make it sort out every small
    // block freed before: three or four declarations fit in one.
    static constexpr std::size_t kBlockUnits = 1008 / sizeof(std::max_align_t);
    // Enough blocks for a few dozen declarations before the list of blocks grows.
    static constexpr std::size_t kFirstBlocks = 8;

    void* allocate(std::size_t size) {
        std::size_t const units = (size + sizeof(std::max_align_t) - 1) / sizeof(std::max_align_t);
        if (m_capacity - m_used < units) {
            if (m_blocks.empty()) {
                m_blocks.reserve(kFirstBlocks);
            }
            m_capacity = units > kBlockUnits ? units : kBlockUnits;
            // Left uninitialised, as objects are made in it: zeroing it would store a long
            // double per unit through the x87 unit, which costs more than the block's allocation.
            m_blocks.emplace_back(new std::max_align_t[m_capacity]);
            m_used = 0;
        }
        void* const room = m_blocks.back().get() + m_used;
        m_used += units;
        return room;
    }

    std::vector<std::unique_ptr<std::max_align_t[]>> m_blocks;
    // Free room at the end of the last block, in units of std::max_align_t.
    std::size_t m_used = 0;
    std::size_t m_capacity = 0;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_OPTION_ARENA_H
