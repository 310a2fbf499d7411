#include "app/option_files.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace quen_3_1::app_detail {

namespace {

char const kBlanks[] = " \t\v\f\r";
// Read at a time: a file is read up to its end or just past the most it may hold.
constexpr std::size_t kChunk = std::size_t{64} << 10U;

}  // namespace

FileRead readOptionsFile(std::string const& path, FileArguments& out) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        return FileRead::Unreadable;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return FileRead::Unreadable;
    }
    std::string text;
    while (file) {
        std::size_t const had = text.size();
        text.resize(had + kChunk);
        file.read(&text[had], static_cast<std::streamsize>(kChunk));
        text.resize(had + static_cast<std::size_t>(file.gcount()));
        if (text.size() > kMaxOptionsFileBytes) {
            return FileRead::TooLarge;
        }
    }
    if (file.bad()) {
        return FileRead::Unreadable;
    }
    out = argumentsOfOptionText(text);
    return FileRead::Read;
}

FileArguments argumentsOfOptionText(std::string const& text) {
    FileArguments found;
    std::size_t start = 0;
    for (std::size_t line = 1; start < text.size(); ++line) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        std::size_t const first = text.find_first_not_of(kBlanks, start);
        std::size_t last = end;
        while (last > start && text[last - 1] == '\r') {
            --last;
        }
        if (first < last && text[first] != ';' && text[first] != '#') {
            found.arguments.push_back(text.substr(first, last - first));
            found.lines.push_back(line);
        }
        start = end + 1;
    }
    return found;
}

}  // namespace quen_3_1::app_detail
