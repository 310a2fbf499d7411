#include "recognizers/decomposed_name.h"

namespace quen_3_1 {

DecomposedName::DecomposedName(std::string const& name) { assign(name); }

void DecomposedName::assign(std::string_view name) {
    std::size_t count = 0;
    std::string_view::size_type start = 0;
    for (;;) {
        std::string_view::size_type const hyphen = name.find('-', start);
        std::string_view const part =
            name.substr(start, hyphen == std::string_view::npos ? std::string_view::npos : hyphen - start);
        if (count < parts.size()) {
            parts[count].assign(part.data(), part.size());
        } else {
            parts.emplace_back(part);
        }
        ++count;
        if (hyphen == std::string_view::npos) {
            parts.resize(count);
            return;
        }
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
