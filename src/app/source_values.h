// What one source (the command line, the environment, the options files)
// gave, before the sources are weighed against each other: every value in
// the order the library reported it, each with the slot (SlotLayout) of its
// option, and the occurrences of each slot. A value carries no name: the
// slot says whose it is, and the result names it once it takes it.
#ifndef QUEN_3_1_SRC_APP_SOURCE_VALUES_H
#define QUEN_3_1_SRC_APP_SOURCE_VALUES_H

#include <cstdint>
#include <string>
#include <vector>

#include "app/result_data.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

// A value as its source gave it is the result's kind of value, its option the slot it was
// recorded at (its level set when the result takes it), so that a source's values can move
// into the result whole.
using SourceValue = TakenValue;

struct SourceValues {
    Source source = Source::CommandLine;
    std::vector<SourceValue> values;
    std::vector<std::size_t> counts;  // by slot
};

// The values of `slot`, in order, as entries without a name.
std::vector<Entry> entriesOf(SourceValues const& source, std::size_t slot);
// The last value of `slot`, or null.
SourceValue* lastOf(SourceValues& source, std::size_t slot);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_SOURCE_VALUES_H
