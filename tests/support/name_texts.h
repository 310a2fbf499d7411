#ifndef QUEN_3_1_TESTS_SUPPORT_NAME_TEXTS_H
#define QUEN_3_1_TESTS_SUPPORT_NAME_TEXTS_H

#include <string>
#include <vector>

#include "options/option_description.h"

namespace quen_test {

// The names of `option` as strings, for comparing with a list in a test.
inline std::vector<std::string> namesOf(quen_3_1::OptionDescription const& option) {
    return std::vector<std::string>(option.names().begin(), option.names().end());
}

}  // namespace quen_test

#endif
