#include "app/source_values.h"

namespace quen_3_1::app_detail {

std::vector<Entry> entriesOf(SourceValues const& source, std::size_t slot) {
    std::vector<Entry> found;
    for (std::size_t i = 0; i < source.entries.size(); ++i) {
        if (source.slots[i] == slot) {
            found.push_back(source.entries[i]);
        }
    }
    return found;
}

Entry* lastOf(SourceValues& source, std::size_t slot) {
    for (std::size_t i = source.entries.size(); i > 0; --i) {
        if (source.slots[i - 1] == slot) {
            return &source.entries[i - 1];
        }
    }
    return nullptr;
}

}  // namespace quen_3_1::app_detail
