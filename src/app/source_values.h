// What one source (the command line, the environment, the options files)
// gave, before the sources are weighed against each other: every entry in
// the order the library reported it, each with the slot (SlotLayout) of its
// option, and the occurrences of each slot.
#ifndef QUEN_3_1_SRC_APP_SOURCE_VALUES_H
#define QUEN_3_1_SRC_APP_SOURCE_VALUES_H

#include <cstdint>
#include <vector>

#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

struct SourceValues {
    std::vector<Entry> entries;
    std::vector<std::uint32_t> slots;  // one per entry
    std::vector<std::size_t> counts;   // by slot
};

// The entries of `slot`, in order.
std::vector<Entry> entriesOf(SourceValues const& source, std::size_t slot);
// The last entry of `slot`, or null.
Entry* lastOf(SourceValues& source, std::size_t slot);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_SOURCE_VALUES_H
