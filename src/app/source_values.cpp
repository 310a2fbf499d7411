#include "app/source_values.h"

namespace quen_3_1::app_detail {

std::vector<Entry> entriesOf(SourceValues const& source, std::size_t slot) {
    std::vector<Entry> found;
    for (SourceValue const& value : source.values) {
        if (value.option == slot) {
            found.push_back(Entry{std::string(), value.text, value.sequence, source.source});
        }
    }
    return found;
}

SourceValue* lastOf(SourceValues& source, std::size_t slot) {
    for (std::size_t i = source.values.size(); i > 0; --i) {
        if (source.values[i - 1].option == slot) {
            return &source.values[i - 1];
        }
    }
    return nullptr;
}

}  // namespace quen_3_1::app_detail
