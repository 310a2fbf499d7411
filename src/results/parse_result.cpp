#include "results/parse_result.h"

#include <algorithm>
#include <string>
#include <utility>

#include "options/option_description.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_parser.h"
#include "recognizers/messages.h"

namespace quen_3_1 {

ParseResult::ParseResult() : m_from(0), m_to(0x7fffffff), m_current(nullptr), m_argumentCursor(0) {}

void ParseResult::destroy() { delete this; }

int ParseResult::store(OptionDescription const& option, OptionData const& data) {
    OptionData copy = data;
    return store(option, copy);
}

// The first store of an option finds its primary name new. Only the odd
// cases, where one occurrence goes to several records, copy the values.
int ParseResult::store(OptionDescription const& option, OptionData& data) {
    NameList const& names = option.names();
    auto const primary = m_names.findOrAdd(names.at(0), NameEntry{kNoRecord, ValueLog::kEnd});
    if (primary.second) {
        replaceUnderEveryName(names, *primary.first, data);
    } else if (reachesOnlyItsOwnRecord(names, primary.first->record)) {
        appendTaking(primary.first->record, data);
    } else {
        appendUnderEveryName(names, data);
    }
    return 0;
}

// The common case, checked without allocating: a few distinct names, all
// reaching `record`, and no other name reaching it.
bool ParseResult::reachesOnlyItsOwnRecord(NameList const& names, std::size_t record) const {
    constexpr std::size_t kFew = 4;
    if (names.size() > kFew || m_records[record].names != names.size()) {
        return false;
    }
    for (std::size_t i = 1; i < names.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (names[i] == names[j]) {
                return false;
            }
        }
        NameEntry const* const found = m_names.find(names[i]);
        if (found == nullptr || found->record != record) {
            return false;
        }
    }
    return true;
}

void ParseResult::replaceUnderEveryName(NameList const& names, NameEntry& primary, OptionData& data) {
    std::size_t const id = newRecord();
    appendTaking(id, data);
    std::uint32_t const kept = keptDefault(data.m_default);
    point(primary, id);
    primary.defaultEntry = kept;
    for (std::size_t i = 1; i < names.size(); ++i) {
        NameEntry& entry = *m_names.findOrAdd(names[i], NameEntry{kNoRecord, ValueLog::kEnd}).first;
        point(entry, id);
        entry.defaultEntry = kept;
    }
}

// What a recognizer hands over carries no default: nothing is kept for it.
std::uint32_t ParseResult::keptDefault(ValueEntry const& entry) {
    bool const none = entry.first.first.empty() && entry.first.second.m_type == tarvo2::vt_empty &&
                      entry.first.second.m_data == 0 && entry.second == 0;
    return none ? ValueLog::kEnd : m_log.keep(entry);
}

// A name appends once per time the declaration lists it. Names that share a
// record but would not append alike (listed a different number of times, or
// the record also reached by a name outside this option) each get a copy of
// it first; a name without a record gets an empty one.
void ParseResult::appendUnderEveryName(NameList const& names, OptionData const& data) {
    std::vector<NameEntry*> listed;
    listed.reserve(names.size());
    for (std::string_view const name : names) {
        listed.push_back(m_names.findOrAdd(name, NameEntry{kNoRecord, ValueLog::kEnd}).first);
    }
    std::sort(listed.begin(), listed.end());
    // Each distinct name with the number of times it is listed, by record.
    std::vector<std::pair<NameEntry*, std::size_t>> counted;
    for (std::size_t i = 0; i < listed.size();) {
        std::size_t j = i;
        while (j < listed.size() && listed[j] == listed[i]) {
            ++j;
        }
        counted.emplace_back(listed[i], j - i);
        i = j;
    }
    auto const byRecord = [](std::pair<NameEntry*, std::size_t> const& a, std::pair<NameEntry*, std::size_t> const& b) {
        return a.first->record < b.first->record;
    };
    std::sort(counted.begin(), counted.end(), byRecord);
    for (std::size_t i = 0; i < counted.size();) {
        std::size_t const record = counted[i].first->record;
        std::size_t j = i;
        bool alike = record != kNoRecord;
        while (j < counted.size() && counted[j].first->record == record) {
            alike = alike && counted[j].second == counted[i].second;
            ++j;
        }
        if (alike && j - i == m_records[record].names) {
            appendTimes(record, data, counted[i].second);
        } else {
            for (std::size_t k = i; k < j; ++k) {
                std::size_t const own = newRecord();
                if (record != kNoRecord) {
                    m_log.copyPositions(m_records[record].positions, m_records[own].positions);
                    m_log.copyValues(m_records[record].values, m_records[own].values);
                }
                point(*counted[k].first, own);
                appendTimes(own, data, counted[k].second);
            }
        }
        i = j;
    }
}

void ParseResult::appendTimes(std::size_t record, OptionData const& data, std::size_t times) {
    Record& to = m_records[record];
    for (std::size_t i = 0; i < times; ++i) {
        for (std::int32_t const position : data.m_positions) {
            m_log.addPosition(to.positions, position);
        }
        for (ValueEntry const& value : data.m_values) {
            m_log.addValue(to.values, value);
        }
    }
}

void ParseResult::appendTaking(std::size_t record, OptionData& data) {
    Record& to = m_records[record];
    for (std::int32_t const position : data.m_positions) {
        m_log.addPosition(to.positions, position);
    }
    for (ValueEntry& value : data.m_values) {
        m_log.takeValue(to.values, value);
    }
}

// A result starts with room for the records of a short command line.
std::size_t ParseResult::newRecord() {
    constexpr std::size_t kFirstRecords = 16;
    if (m_records.empty()) {
        m_records.reserve(kFirstRecords);
    }
    m_records.emplace_back();
    return m_records.size() - 1;
}

void ParseResult::point(NameEntry& entry, std::size_t record) {
    if (entry.record == record) {
        return;
    }
    if (entry.record != kNoRecord) {
        --m_records[entry.record].names;
    }
    entry.record = record;
    ++m_records[record].names;
}

// Names first seen here share one empty record, so that the option's first
// store appends to one record.
Status ParseResult::applyDefault(RegisteredOptionStorage& storage, std::string& message) {
    for (std::size_t i = 0; i < storage.size(); ++i) {
        OptionDescription const& option = storage.at(i);
        if (option.type() == tarvo2::vt_empty || !option.hasDefault()) {
            continue;
        }
        std::size_t shared = kNoRecord;
        for (std::string_view const name : option.names()) {
            std::int32_t const number = IArgumentParser::takeNumber();
            if (number == IArgumentParser::kNoNumber) {
                message = recognizer_messages::numbersExhausted();
                return Status::NumbersExhausted;
            }
            auto const placed = m_names.findOrAdd(name, NameEntry{kNoRecord, ValueLog::kEnd});
            NameEntry& entry = *placed.first;
            if (placed.second) {
                shared = shared == kNoRecord ? newRecord() : shared;
                point(entry, shared);
            }
            ValueEntry const kept(std::make_pair(std::string(option.toString(option.garbage(), option.getDefault())),
                                                 option.getDefault()),
                                  number);
            entry.defaultEntry = m_log.keep(kept);
        }
    }
    return Status::Ok;
}

void ParseResult::appendArgument(std::string const& text, std::int32_t number) {
    m_arguments.emplace_back(text, number);
}

}  // namespace quen_3_1
