// The plain data behind a Result: copied out of the parse, never changed after.
#ifndef QUEN_3_1_SRC_APP_RESULT_DATA_H
#define QUEN_3_1_SRC_APP_RESULT_DATA_H

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "app/name_table.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

// The counts of one parsed App level: m_counts[first + i] for its option i
// (name_id.h), m_counts[first + options + j] for its options-file option j.
struct CountedLevel {
    // Shared with the App, which copies it before it changes.
    std::shared_ptr<NameTable const> names;
    std::size_t first;
    std::size_t options;
    // False while the level's values are not taken (and when its parse stopped before):
    // only its names serve then, for the entries.
    bool counted = false;
};

// A number as check read it from its text, in the bits of its own type, so that a value
// is read once however many steps it passes (a text's is unused).
using ReadNumber = std::uint64_t;

// One value that took effect: an Entry without its name, which is looked up only when the
// entries are asked for (the first name of option `option` of level `level`, see name_id.h).
struct TakenValue {
    std::string text;
    std::int32_t sequence = 0;
    Source source = Source::CommandLine;
    std::uint32_t level = 0;
    std::uint32_t option = 0;
    ReadNumber number = 0;
};

class ResultData {
public:
    // m_values as entries, made when first asked for (from any thread).
    std::vector<Entry> const& entries() const;

    int m_exitCode = 0;
    bool m_done = false;
    bool m_toStandardOutput = false;
    std::string m_message;
    std::vector<std::string> m_command;
    std::vector<std::string> m_rest;
    std::vector<TakenValue> m_values;
    // A level is listed once its parse begins (its names name its values).
    std::vector<CountedLevel> m_levels;
    std::vector<std::size_t> m_counts;

private:
    mutable std::once_flag m_entriesMade;
    mutable std::vector<Entry> m_entries;
};

// Exit code of a declaration mistake: an internal software error.
int const kDeclarationExitCode = 70;
// Exit code of every mistake a user can make.
int const kUsageExitCode = 2;

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_RESULT_DATA_H
