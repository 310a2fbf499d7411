// The names one App level answers to, each with a small number that says
// what it names: a flat open-addressing table over one text that holds every
// name, so that declaring, parsing and reading a result back look a name up
// without building a string or a node.
#ifndef QUEN_3_1_SRC_APP_NAME_TABLE_H
#define QUEN_3_1_SRC_APP_NAME_TABLE_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quen_3_1::app_detail {

class NameTable {
public:
    static constexpr std::uint32_t kNone = UINT32_MAX;

    // The number given with `name`, or kNone.
    std::uint32_t find(std::string_view name) const;
    bool contains(std::string_view name) const { return find(name) != kNone; }
    // The number `name` has; kNone when it had none and now has `id`.
    std::uint32_t insert(std::string_view name, std::uint32_t id);
    // Gives `name`, which is there, the number `id`.
    void update(std::string_view name, std::uint32_t id);
    // The first name inserted with the number `id` (empty when none has it): a search of every slot.
    std::string_view firstNameOf(std::uint32_t id) const;

private:
    struct Slot {
        std::uint32_t id = kNone;
        std::uint32_t offset = 0;  // of the name in m_text
        std::uint32_t size = 0;
        std::uint32_t hash = 0;  // the name's hash, compared before its text
    };

    std::string_view nameOf(Slot const& slot) const { return std::string_view(m_text.data() + slot.offset, slot.size); }
    // The slot that holds `name` (whose hash is `hash`), else the empty slot where it goes.
    std::size_t slotOf(std::string_view name, std::size_t hash) const;
    void grow();

    std::vector<Slot> m_slots;
    std::string m_text;
    std::size_t m_used = 0;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_NAME_TABLE_H
