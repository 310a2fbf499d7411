#include "app/slot_layout.h"

#include "app/collector_name.h"
#include "app/name_id.h"

namespace quen_3_1::app_detail {

SlotLayout::SlotLayout(AppState const& app, BuiltinNames const& builtins)
    : m_app(app), m_builtins(builtins), m_options(app.m_options.size()), m_files(app.m_files.size()) {}

std::size_t SlotLayout::of(std::string_view name) const {
    std::uint32_t const id = m_app.names().find(name);
    if (id != NameTable::kNone && name_id::isOption(id)) {
        return option(id);
    }
    if (id != NameTable::kNone && name_id::isFile(id)) {
        return file(id & name_id::kIndex);
    }
    if (name == kCollectorName) {
        return collector();
    }
    if (!m_builtins.help.empty() && m_builtins.help == name) {
        return help();
    }
    if (!m_builtins.version.empty() && m_builtins.version == name) {
        return version();
    }
    if (!m_builtins.completion.empty() && m_builtins.completion == name) {
        return completion();
    }
    return size();
}

}  // namespace quen_3_1::app_detail
