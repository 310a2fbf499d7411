#ifndef QUEN_3_1_RESULTS_VALUE_LOG_H
#define QUEN_3_1_RESULTS_VALUE_LOG_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "results/block_log.h"
#include "results/option_data.h"
#include "values/text_arena.h"
#include "values/variant_transfer.h"

namespace quen_3_1 {

// Every occurrence number and value a result keeps, in two append-only logs
// shared by all its options: an option's occurrences (or values) form a
// chain through the log, so a stored argument costs no allocation of its
// own and a long command line lives in a few large blocks. Value texts are
// kept in one arena and handed out from there.
class ValueLog final {
public:
    static constexpr std::uint32_t kEnd = 0xffffffffU;

    // The entries of one chain; empty while first is kEnd.
    struct Chain {
        std::uint32_t first = kEnd;
        std::uint32_t last = kEnd;
        bool empty() const { return first == kEnd; }
    };
    struct Position {
        std::int32_t number;
        std::uint32_t next;  // kEnd at the end of its chain
    };
    struct Stored {
        char const* text;  // in the arena; NUL-terminated, may hold NULs
        Payload value;     // owned by the log
        std::int32_t number;
        std::uint32_t next;  // kEnd at the end of its chain, and for a lone entry
    };

    ValueLog() = default;
    ValueLog(ValueLog const&) = delete;
    ValueLog& operator=(ValueLog const&) = delete;
    ~ValueLog();

    void addPosition(Chain& chain, std::int32_t number);
    // Appends a copy of `entry` to `chain`.
    void addValue(Chain& chain, ValueEntry const& entry);
    // The same, taking the converted value out of `entry` instead of copying it.
    void takeValue(Chain& chain, ValueEntry& entry);
    // Appends copies of every entry of `from` to `to`.
    void copyPositions(Chain const& from, Chain& to);
    void copyValues(Chain const& from, Chain& to);
    // Keeps a copy of `entry` outside every chain; its index.
    std::uint32_t keep(ValueEntry const& entry);

    Position const& position(std::uint32_t at) const { return m_positions[at]; }
    Stored const& value(std::uint32_t at) const { return m_values[at]; }
    // The whole text of a stored value, NUL characters included.
    static std::string_view textOf(Stored const& stored) { return TextArena::copied(stored.text); }
    // A copy of a stored value in the form an occurrence carries.
    ValueEntry entryAt(std::uint32_t at) const;

private:
    std::uint32_t append(char const* text, Payload value, std::int32_t number);
    void link(Chain& chain, std::uint32_t at, std::uint32_t& previousNext);

    BlockLog<Position> m_positions;
    BlockLog<Stored> m_values;
    TextArena m_texts;
};

}  // namespace quen_3_1

#endif
