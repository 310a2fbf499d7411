// What one source (the command line, the environment, the options files)
// gave, option by option, before the sources are weighed against each other.
#ifndef QUEN_3_1_SRC_APP_SOURCE_VALUES_H
#define QUEN_3_1_SRC_APP_SOURCE_VALUES_H

#include <vector>

#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

struct OptionValues {
    std::size_t count = 0;
    std::vector<Entry> entries;
};

// One per slot of the level's SlotLayout.
using SourceValues = std::vector<OptionValues>;

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_SOURCE_VALUES_H
