#ifndef QUEN_3_1_OPTIONS_REQUIRED_TEXT_H
#define QUEN_3_1_OPTIONS_REQUIRED_TEXT_H

#include <stdexcept>

#include "options/messages.h"

namespace quen_3_1 {

// A host's text; a null one is refused as a string made of it always was.
inline char const* requiredText(char const* text) {
    if (text == nullptr) {
        throw std::logic_error(option_messages::nullText());
    }
    return text;
}

}  // namespace quen_3_1

#endif
