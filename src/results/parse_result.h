#ifndef QUEN_3_1_RESULTS_PARSE_RESULT_H
#define QUEN_3_1_RESULTS_PARSE_RESULT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quen_3_1/quen.h"
#include "recognizers/status.h"
#include "results/name_table.h"
#include "results/option_data.h"
#include "results/result_collector.h"
#include "results/value_log.h"
#include "values/garbage.h"

namespace quen_3_1 {

class NameList;
class RegisteredOptionStorage;

// The result of one or more parses: one record of occurrences and values per
// stored option, reached by every one of its names, each name with its own
// default; plain arguments; and the cursors of the current query.
class ParseResult final : public IParseResult, public IResultCollector {
public:
    ParseResult();
    ParseResult(ParseResult const&) = delete;
    ParseResult& operator=(ParseResult const&) = delete;

    void destroy() override;
    bool present(char const* name, int from, int to) override;
    Value get(char const* name, int from, int to) override;
    Value next(char const* name) override;
    int nextPosition() override;
    int getFirstArgument(char const** text) override;
    int getNextArgument(char const** text) override;
    ~ParseResult() override = default;

    // The first store of an option (its first name unknown) replaces the data
    // under every name; later stores append under every name, once per time
    // the name is listed. Returns 0.
    int store(OptionDescription const& option, OptionData& data) override;
    // The same with the values copied.
    int store(OptionDescription const& option, OptionData const& data);
    // Sets the default entry of every option that has one, one sequence number
    // per name. NumbersExhausted, with `message` set, when the numbers run
    // out; the defaults set before stay.
    Status applyDefault(RegisteredOptionStorage& storage, std::string& message);
    // Keeps a plain argument with its sequence number.
    void appendArgument(std::string const& text, std::int32_t number);

    // Query internals; codes 0 found, 1 not found, 3 standard exception.
    int get(std::string_view name, char const** text, tarvo2::variant_t& value, int from, int to, int& number);
    int next(std::string const& name, char const** text, tarvo2::variant_t& value, int& number);
    int getFirstArgument(std::string& text);
    int getNextArgument(std::string& text);

    // The occurrences and values of one option, shared by the names that
    // have seen the same stores.
    struct Record {
        ValueLog::Chain positions;  // occurrence numbers, in store order
        ValueLog::Chain values;     // values of all occurrences, in store order
        std::size_t names = 0;      // names that reach this record
    };
    // What one name reaches: its option's record and its own default.
    struct NameEntry {
        std::size_t record;
        std::uint32_t defaultEntry;  // in the log; ValueLog::kEnd when none was stored
    };
    // Nothing depends on the order of the names, so a hash table serves; its
    // entries stay in place when it grows, which m_current relies on.
    using NameMap = NameTable<NameEntry>;

    NameMap const& names() const { return m_names; }
    Record const& record(std::size_t id) const { return m_records[id]; }
    ValueLog const& log() const { return m_log; }
    std::vector<std::pair<std::string, std::int32_t>> const& arguments() const { return m_arguments; }

private:
    static constexpr std::size_t kNoRecord = static_cast<std::size_t>(-1);

    // Where an iteration over one chain of the current record stands: how
    // many entries it has passed and the last of them. Stores only append,
    // so the entry after `last` is the next one even when stores came in
    // between; a name pointed at another record meanwhile is walked again
    // from the start of its new record.
    struct Cursor {
        std::size_t passed = 0;
        std::uint32_t last = ValueLog::kEnd;
        std::size_t record = kNoRecord;
    };

    bool reachesOnlyItsOwnRecord(NameList const& names, std::size_t record) const;
    void replaceUnderEveryName(NameList const& names, NameEntry& primary, OptionData& data);
    void appendUnderEveryName(NameList const& names, OptionData const& data);
    void appendTimes(std::size_t record, OptionData const& data, std::size_t times);
    void appendTaking(std::size_t record, OptionData& data);
    std::uint32_t keptDefault(ValueEntry const& entry);
    std::size_t newRecord();
    void point(NameEntry& entry, std::size_t record);
    Record const& currentRecord() const { return m_records[m_current->record]; }
    // The current name has a default and its option no occurrence.
    bool onlyDefault() const;

    bool hasCurrent() const { return m_current != nullptr; }
    template <class Query>
    Value publicQuery(char const* name, Query query);
    int readDefault(char const** text, tarvo2::variant_t& value, int& number);
    int readNext(char const** text, tarvo2::variant_t& value, int& number);
    int nextValue(char const** text, tarvo2::variant_t& value, int& number);
    int nextOccurrence(int& number);
    void restart(Cursor& cursor) const { cursor = Cursor{0, ValueLog::kEnd, m_current->record}; }
    // The entry after the cursor in `chain` of the current record, `nextOf`
    // following that chain's links; kEnd at the end.
    template <class NextOf>
    std::uint32_t upcoming(Cursor& cursor, ValueLog::Chain Record::*chain, NextOf nextOf) const;
    std::uint32_t upcomingPosition(Cursor& cursor) const;
    std::uint32_t upcomingValue(Cursor& cursor) const;
    static void pass(Cursor& cursor, std::uint32_t entry) {
        ++cursor.passed;
        cursor.last = entry;
    }

    NameMap m_names;
    // Records are never removed; one left without names is no longer reached.
    std::vector<Record> m_records;
    ValueLog m_log;
    Cursor m_valueCursor;
    Cursor m_positionCursor;
    std::int32_t m_from;
    std::int32_t m_to;
    NameEntry* m_current;  // null when the last lookup failed
    Garbage m_garbage;
    std::vector<std::pair<std::string, std::int32_t>> m_arguments;
    std::size_t m_argumentCursor;
};

}  // namespace quen_3_1

#endif
