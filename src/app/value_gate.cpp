#include "app/value_gate.h"

#include <algorithm>
#include <utility>

namespace quen_3_1::app_detail {

ValueGate::ValueGate(std::string collector) : m_collector(std::move(collector)) {}

void ValueGate::watch(OptionState const& option) { m_watched[option.name()] = &option; }

void ValueGate::begin(Source source, SourceValues& into) {
    m_source = source;
    m_into = &into;
    m_refusal.clear();
    m_unknown.clear();
    m_emptyArgument = false;
}

void ValueGate::startAfter(std::int32_t sequence) { m_lastSequence = std::max(m_lastSequence, sequence); }

bool ValueGate::onOptionParse(char const* name) {
    if (m_into == nullptr) {
        return true;
    }
    OptionValues& values = (*m_into)[name];
    ++values.count;
    // A plain argument may be empty: it then comes without a value event. Its
    // occurrence took the next number after the last value, which no event tells.
    m_emptyArgument = name == m_collector;
    if (m_emptyArgument) {
        values.entries.push_back(Entry{name, std::string(), ++m_lastSequence, m_source});
    }
    return true;
}

bool ValueGate::onValueParse(char const* name, Value const& value) {
    if (m_into == nullptr) {
        return true;
    }
    std::string const text = value.m_text == nullptr ? std::string() : std::string(value.m_text);
    auto const watched = m_watched.find(name);
    if (watched != m_watched.end()) {
        m_refusal = watched->second->binding().check(name, text);
        if (!m_refusal.empty()) {
            return false;
        }
    }
    m_lastSequence = value.m_index;
    OptionValues& values = (*m_into)[name];
    if (m_emptyArgument && !values.entries.empty()) {
        values.entries.back().text = text;
        values.entries.back().sequence = value.m_index;
        m_emptyArgument = false;
        return true;
    }
    values.entries.push_back(Entry{name, text, value.m_index, m_source});
    return true;
}

bool ValueGate::onUknownArgument(char const* argument) {
    m_unknown = argument == nullptr ? std::string() : std::string(argument);
    return true;
}

}  // namespace quen_3_1::app_detail
