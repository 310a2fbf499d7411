// A positional's value checked as the library checks an option's value (its
// kind, allowed values and value abbreviation), then by the layer's binding.
#ifndef QUEN_3_1_SRC_APP_POSITIONAL_CHECK_H
#define QUEN_3_1_SRC_APP_POSITIONAL_CHECK_H

#include <string>

#include "app/option_state.h"

namespace quen_3_1::app_detail {

// Empty when accepted (`text` then holds an abbreviated allowed value in full, and `number`
// the number read from it), the reason otherwise.
std::string checkPositional(OptionState const& option, std::string& text, ReadNumber& number);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_POSITIONAL_CHECK_H
