#include "extras/visible_names.h"

#include "options/registered_option_storage.h"

namespace quen_3_1 {

bool isTypeableName(std::string_view name) {
    return !name.empty() && name.find_first_of(std::string_view("=\n\r\0", 4)) == std::string_view::npos;
}

bool isHiddenOption(OptionDescription const& option) { return option.group() == "quen_hidden"; }

std::vector<VisibleName> visibleNames(RegisteredOptionStorage const& storage) {
    std::vector<VisibleName> names;
    for (std::size_t i = 0; i < storage.size(); ++i) {
        OptionDescription const& option = storage.at(i);
        if (isHiddenOption(option)) {
            continue;
        }
        for (std::string_view const name : option.names()) {
            if (!isTypeableName(name)) {
                continue;
            }
            names.push_back(VisibleName{std::string(name), i});
            if (option.type() == tarvo2::vt_bool) {
                names.push_back(VisibleName{"no-" + std::string(name), i});
            }
        }
    }
    return names;
}

}  // namespace quen_3_1
