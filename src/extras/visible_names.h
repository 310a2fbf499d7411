#ifndef QUEN_3_1_EXTRAS_VISIBLE_NAMES_H
#define QUEN_3_1_EXTRAS_VISIBLE_NAMES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quen_3_1 {

class OptionDescription;
class RegisteredOptionStorage;

// The hidden help group: its options are never offered to users.
bool isHiddenOption(OptionDescription const& option);

// False for names that cannot be typed as one shell word: empty ones, and
// those holding '=', a line break or NUL.
bool isTypeableName(std::string_view name);

// A name the named-option recognizer accepts, with the index of its option.
struct VisibleName {
    std::string name;
    std::size_t option;
};

// The recognizer's candidate names in its own order (each boolean's "no-"
// form right after the name), without hidden options and untypeable names.
std::vector<VisibleName> visibleNames(RegisteredOptionStorage const& storage);

}  // namespace quen_3_1

#endif
