#include "app/value_gate.h"

#include <algorithm>
#include <utility>

namespace quen_3_1::app_detail {

ValueGate::ValueGate(AppState const& app, SlotLayout const& layout) : m_app(app), m_layout(layout) {}

void ValueGate::begin(Source source, SourceValues& into, std::size_t arguments) {
    into.source = source;
    m_into = &into;
    if (into.counts.size() < m_layout.size()) {
        into.counts.resize(m_layout.size());
    }
    // Only the first time: a source parsed again (file after file) grows as vectors do.
    if (into.values.empty()) {
        into.values.reserve(arguments);
    }
    m_refusal.clear();
    m_unknown.clear();
    m_emptyArgument = false;
    m_lastName = nullptr;
}

// A value event follows the event of its option: the name is looked up once. The library
// hands both events the same kept text, which it holds until the parser goes; the pointer is
// forgotten at every begin, so that a parser built again can not mislead it.
std::size_t ValueGate::slotOf(char const* name) {
    if (name == m_lastName && name != nullptr) {
        return m_lastSlot;
    }
    m_lastSlot = m_layout.of(name == nullptr ? std::string_view() : std::string_view(name));
    m_lastName = name;
    return m_lastSlot;
}

void ValueGate::startAfter(std::int32_t sequence) { m_lastSequence = std::max(m_lastSequence, sequence); }

bool ValueGate::onOptionParse(char const* name) {
    if (m_into == nullptr) {
        return true;
    }
    std::size_t const slot = slotOf(name);
    // A name the App does not know (cut short at a NUL by the library) is not recorded.
    if (slot == m_layout.size()) {
        m_emptyArgument = false;
        return true;
    }
    ++m_into->counts[slot];
    // A plain argument may be empty: it then comes without a value event. Its
    // occurrence took the next number after the last value, which no event tells.
    m_emptyArgument = slot == m_layout.collector();
    if (m_emptyArgument) {
        record(slot, std::string_view(), ++m_lastSequence, 0);
    }
    return true;
}

bool ValueGate::onValueParse(char const* name, Value const& value) {
    if (m_into == nullptr) {
        return true;
    }
    std::size_t const slot = slotOf(name);
    if (slot == m_layout.size()) {
        m_lastSequence = value.m_index;
        return true;
    }
    std::string_view const text = value.m_text == nullptr ? std::string_view() : std::string_view(value.m_text);
    ReadNumber number = 0;
    if (slot < m_layout.options()) {
        // Kept only when refused: the empty reason is not copied (a string just returned and
        // copied whole is read as one wide word over the narrower stores that made it).
        std::string reason = m_app.m_options[slot]->binding().check(name, text, number);
        if (!reason.empty()) {
            m_refusal = std::move(reason);
            return false;
        }
        m_refusal.clear();
    }
    m_lastSequence = value.m_index;
    SourceValue* const last = m_emptyArgument ? lastOf(*m_into, slot) : nullptr;
    if (last != nullptr) {
        last->text.assign(text.data(), text.size());
        last->sequence = value.m_index;
        last->number = number;
        m_emptyArgument = false;
        return true;
    }
    record(slot, text, value.m_index, number);
    return true;
}

void ValueGate::record(std::size_t slot, std::string_view text, std::int32_t sequence, ReadNumber number) {
    // Made in place: no value is built to be moved.
    SourceValue& value = m_into->values.emplace_back();
    value.text.assign(text.data(), text.size());
    value.sequence = sequence;
    value.source = m_into->source;
    value.option = static_cast<std::uint32_t>(slot);
    value.number = number;
}

bool ValueGate::onUknownArgument(char const* argument) {
    m_unknown = argument == nullptr ? std::string() : std::string(argument);
    return true;
}

}  // namespace quen_3_1::app_detail
