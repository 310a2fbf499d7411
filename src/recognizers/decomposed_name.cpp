#include "recognizers/decomposed_name.h"

namespace quen_3_1 {

DecomposedName::DecomposedName(std::string const& name) {
    std::string::size_type start = 0;
    for (;;) {
        std::string::size_type const hyphen = name.find('-', start);
        if (hyphen == std::string::npos) {
            parts.push_back(name.substr(start));
            return;
        }
        parts.push_back(name.substr(start, hyphen - start));
        start = hyphen + 1;
    }
}

std::string DecomposedName::getName() const {
    std::string name = parts[0];
    for (std::size_t i = 1; i < parts.size(); ++i) {
        name += '-';
        name += parts[i];
    }
    return name;
}

}  // namespace quen_3_1
