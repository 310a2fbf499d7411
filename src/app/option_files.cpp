#include "app/option_files.h"

#include <fstream>
#include <sstream>

namespace quen_3_1::app_detail {

namespace {

char const kBlanks[] = " \t\v\f\r";

}  // namespace

bool readOptionsFile(std::string const& path, FileArguments& out) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return false;
    }
    std::ostringstream text;
    text << file.rdbuf();
    if (file.bad()) {
        return false;
    }
    out = argumentsOfOptionText(text.str());
    return true;
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
