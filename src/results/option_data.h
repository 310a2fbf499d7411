#ifndef QUEN_3_1_RESULTS_OPTION_DATA_H
#define QUEN_3_1_RESULTS_OPTION_DATA_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "quen_3_1/quen.h"

namespace quen_3_1 {

// One stored value: ((text as given, converted value), sequence number).
using ValueEntry = std::pair<std::pair<std::string, tarvo2::variant_t>, std::int32_t>;

// Everything a result keeps for one option under one of its names.
struct OptionData {
    std::vector<std::int32_t> m_positions;  // occurrence numbers, in store order
    std::vector<ValueEntry> m_values;       // values of all occurrences, in store order
    ValueEntry m_default;                   // applied default; empty text when none
};

}  // namespace quen_3_1

#endif
