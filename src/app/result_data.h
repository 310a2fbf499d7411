// The plain data behind a Result: copied out of the parse, never changed after.
#ifndef QUEN_3_1_SRC_APP_RESULT_DATA_H
#define QUEN_3_1_SRC_APP_RESULT_DATA_H

#include <memory>
#include <string>
#include <vector>

#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

struct CountedOption {
    // Shared with the declaration, which never changes them.
    std::shared_ptr<std::vector<std::string> const> names;
    std::size_t count;
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
    std::vector<CountedOption> m_counts;
};

// Exit code of a declaration mistake: an internal software error.
int const kDeclarationExitCode = 70;
// Exit code of every mistake a user can make.
int const kUsageExitCode = 2;

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_RESULT_DATA_H
