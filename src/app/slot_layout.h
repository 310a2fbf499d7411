// Where the values of one App level are recorded while it is parsed: one slot
// per option of the App in declaration order, then its options-file options,
// then the layer's own options (help, version, completion, the plain-argument
// collector), so that a value finds its place without a lookup by text.
#ifndef QUEN_3_1_SRC_APP_SLOT_LAYOUT_H
#define QUEN_3_1_SRC_APP_SLOT_LAYOUT_H

#include <cstddef>
#include <string>
#include <string_view>

#include "app/app_state.h"

namespace quen_3_1::app_detail {

// First names of the layer's own options; empty when the App did not get one.
struct BuiltinNames {
    std::string help;
    std::string version;
    std::string completion;
};

class SlotLayout {
public:
    // `builtins` may be filled in later; the layout reads it when asked.
    SlotLayout(AppState const& app, BuiltinNames const& builtins);

    std::size_t option(std::size_t index) const { return index; }
    std::size_t file(std::size_t index) const { return m_options + index; }
    std::size_t help() const { return m_options + m_files; }
    std::size_t version() const { return help() + 1; }
    std::size_t completion() const { return help() + 2; }
    std::size_t collector() const { return help() + 3; }
    std::size_t size() const { return help() + 4; }
    // Below this, a slot is the index of one of the App's options.
    std::size_t options() const { return m_options; }

    // The slot of the option the library reports as `name`, or size() when there is none.
    std::size_t of(std::string_view name) const;

private:
    AppState const& m_app;
    BuiltinNames const& m_builtins;
    std::size_t m_options;
    std::size_t m_files;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_SLOT_LAYOUT_H
