#include "results/value_log.h"

#include <string>

namespace quen_3_1 {

ValueLog::~ValueLog() {
    for (std::uint32_t at = 0; at < m_values.size(); ++at) {
        releasePayload(m_values[at].value);
    }
}

void ValueLog::addPosition(Chain& chain, std::int32_t number) {
    std::uint32_t const at = m_positions.push(Position{number, kEnd});
    std::uint32_t ignored = kEnd;
    link(chain, at, chain.empty() ? ignored : m_positions[chain.last].next);
}

void ValueLog::addValue(Chain& chain, ValueEntry const& entry) {
    std::uint32_t const at = keep(entry);
    std::uint32_t ignored = kEnd;
    link(chain, at, chain.empty() ? ignored : m_values[chain.last].next);
}

void ValueLog::takeValue(Chain& chain, ValueEntry& entry) {
    m_values.reserveOne();
    char const* const text = m_texts.copy(entry.first.first);
    std::uint32_t const at = append(text, takePayload(entry.first.second), entry.second);
    std::uint32_t ignored = kEnd;
    link(chain, at, chain.empty() ? ignored : m_values[chain.last].next);
}

void ValueLog::copyPositions(Chain const& from, Chain& to) {
    for (std::uint32_t at = from.first; at != kEnd; at = m_positions[at].next) {
        addPosition(to, m_positions[at].number);
    }
}

void ValueLog::copyValues(Chain const& from, Chain& to) {
    for (std::uint32_t at = from.first; at != kEnd; at = m_values[at].next) {
        addValue(to, entryAt(at));
    }
}

// The room and the text come first, so that nothing can fail once the value is copied.
std::uint32_t ValueLog::keep(ValueEntry const& entry) {
    m_values.reserveOne();
    char const* const text = m_texts.copy(entry.first.first);
    return append(text, copyPayload(entry.first.second), entry.second);
}

ValueEntry ValueLog::entryAt(std::uint32_t at) const {
    Stored const& stored = m_values[at];
    ValueEntry entry;
    entry.first.first = std::string(textOf(stored));
    assignPayload(entry.first.second, stored.value);
    entry.second = stored.number;
    return entry;
}

// Never throws: the caller has made room.
std::uint32_t ValueLog::append(char const* text, Payload value, std::int32_t number) {
    return m_values.push(Stored{text, value, number, kEnd});
}

void ValueLog::link(Chain& chain, std::uint32_t at, std::uint32_t& previousNext) {
    if (chain.empty()) {
        chain.first = at;
    } else {
        previousNext = at;
    }
    chain.last = at;
}

}  // namespace quen_3_1
