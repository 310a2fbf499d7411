#include "app/source_values.h"

namespace quen_3_1::app_detail {

std::vector<std::string> textsOf(OptionValues const& values) {
    std::vector<std::string> texts;
    texts.reserve(values.entries.size());
    for (Entry const& entry : values.entries) {
        texts.push_back(entry.text);
    }
    return texts;
}

}  // namespace quen_3_1::app_detail
