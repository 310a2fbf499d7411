#include "results/value_log.h"

#include <string>

namespace quen_3_1 {

ValueLog::~ValueLog() {
    for (Stored const& stored : m_values) {
        releasePayload(stored.value);
    }
}

void ValueLog::addPosition(Chain& chain, std::int32_t number) {
    auto const at = static_cast<std::uint32_t>(m_positions.size());
    m_positions.push_back(Position{number, kEnd});
    std::uint32_t ignored = kEnd;
    link(chain, at, chain.empty() ? ignored : m_positions[chain.last].next);
}

void ValueLog::addValue(Chain& chain, ValueEntry const& entry) {
    std::uint32_t const at = append(entry);
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

std::uint32_t ValueLog::keep(ValueEntry const& entry) { return append(entry); }

ValueEntry ValueLog::entryAt(std::uint32_t at) const {
    Stored const& stored = m_values[at];
    ValueEntry entry;
    entry.first.first = std::string(textOf(stored));
    assignPayload(entry.first.second, stored.value);
    entry.second = stored.number;
    return entry;
}

// The copy of the value is made first, so that a failed copy leaves nothing behind.
std::uint32_t ValueLog::append(ValueEntry const& entry) {
    Payload const value = copyPayload(entry.first.second);
    try {
        char const* const text = m_texts.copy(entry.first.first);
        m_values.push_back(Stored{text, value, entry.second, kEnd});
    } catch (...) {
        releasePayload(value);
        throw;
    }
    return static_cast<std::uint32_t>(m_values.size() - 1);
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
