// The plain data behind a Result: copied out of the parse, never changed after.
#ifndef QUEN_3_1_SRC_APP_RESULT_DATA_H
#define QUEN_3_1_SRC_APP_RESULT_DATA_H

#include <memory>
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
};

class ResultData {
public:
    int m_exitCode = 0;
    bool m_done = false;
    bool m_toStandardOutput = false;
    std::string m_message;
    std::vector<std::string> m_command;
    std::vector<std::string> m_rest;
    std::vector<Entry> m_entries;
    std::vector<CountedLevel> m_levels;
    std::vector<std::size_t> m_counts;
};

// Exit code of a declaration mistake: an internal software error.
int const kDeclarationExitCode = 70;
// Exit code of every mistake a user can make.
int const kUsageExitCode = 2;

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_RESULT_DATA_H
