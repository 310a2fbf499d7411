// Options files: one argument per line, as the library's option texts, with
// the line number of each argument kept for messages.
#ifndef QUEN_3_1_SRC_APP_OPTION_FILES_H
#define QUEN_3_1_SRC_APP_OPTION_FILES_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quen_3_1::app_detail {

struct FileArguments {
    std::vector<std::string> arguments;
    std::vector<std::size_t> lines;  // 1-based, one per argument
};

// The most an options file may hold: the user names the path, and it may name a device
// that never ends.
constexpr std::size_t kMaxOptionsFileBytes = std::size_t{16} << 20U;

enum class FileRead : std::uint8_t { Read, Unreadable, TooLarge };

// Reads the file's arguments into `out`; a directory can not be read.
FileRead readOptionsFile(std::string const& path, FileArguments& out);

// Splits an option text: blank lines and lines whose first non-blank is ';' or
// '#' are skipped, leading blanks and trailing '\r' removed.
FileArguments argumentsOfOptionText(std::string const& text);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_OPTION_FILES_H
