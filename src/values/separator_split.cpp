#include "values/separator_split.h"

#include <algorithm>
#include <cstring>

namespace quen_3_1 {

namespace {

// `data[size]` is the terminating NUL, which a trailing separator's piece holds.
void splitTerminated(char const* data, std::size_t size, char separator, std::vector<std::string>& out) {
    // Each separator ends at most one piece: one allocation for a new list. A
    // list appended to keeps its geometric growth.
    if (out.empty()) {
        out.reserve(static_cast<std::size_t>(std::count(data, data + size, separator)) + 1);
    }
    std::size_t start = 0;
    std::size_t pos = 0;
    while (pos < size) {
        if (data[pos] == separator) {
            out.emplace_back(data + start, pos - start);
            start = pos + 1;
            pos += 2;
        } else {
            ++pos;
        }
    }
    if (start != pos) {
        out.emplace_back(data + start, pos - start);
    }
}

}  // namespace

void splitAtSeparator(std::string const& text, char separator, std::vector<std::string>& out) {
    splitTerminated(text.c_str(), text.size(), separator, out);
}

void splitAtSeparator(char const* text, char separator, std::vector<std::string>& out) {
    splitTerminated(text, std::strlen(text), separator, out);
}

}  // namespace quen_3_1
