// The layer's handler on the library's parser: it hears every option and
// value in command-line order, vetoes a value that is not whole or fails a
// range or check, and records the rest with their sequence numbers.
#ifndef QUEN_3_1_SRC_APP_VALUE_GATE_H
#define QUEN_3_1_SRC_APP_VALUE_GATE_H

#include <string>
#include <string_view>

#include "app/app_state.h"
#include "app/slot_layout.h"
#include "app/source_values.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

class ValueGate final : public EventHandler {
public:
    // Values of `app`'s options are checked by their bindings and recorded at their `layout` slots.
    ValueGate(AppState const& app, SlotLayout const& layout);

    // Records what follows into `into`, as coming from `source`; `arguments` is how many
    // arguments follow, about as many as the values they give.
    void begin(Source source, SourceValues& into, std::size_t arguments);
    // Numbers of what follows are greater than `sequence` (what an earlier parse recorded).
    void startAfter(std::int32_t sequence);

    bool onOptionParse(char const* name) override;
    bool onValueParse(char const* name, Value const& value) override;
    bool onUknownArgument(char const* argument) override;

    // The layer's reason for the last veto, or empty.
    std::string const& refusal() const { return m_refusal; }
    // The last argument that no option took.
    std::string const& unknown() const { return m_unknown; }
    // The greatest number recorded so far.
    std::int32_t lastSequence() const { return m_lastSequence; }

private:
    std::size_t slotOf(char const* name);
    void record(std::size_t slot, std::string_view text, std::int32_t sequence, ReadNumber number);

    AppState const& m_app;
    SlotLayout const& m_layout;
    SourceValues* m_into = nullptr;
    std::string m_refusal;
    std::string m_unknown;
    bool m_emptyArgument = false;
    std::int32_t m_lastSequence = 0;
    std::size_t m_lastSlot = static_cast<std::size_t>(-1);
    char const* m_lastName = nullptr;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_VALUE_GATE_H
