#include "values/separator_split.h"

#include <cstring>

namespace quen_3_1 {

void splitAtSeparator(std::string const& text, char separator, std::vector<std::string>& out) {
    char const* const data = text.c_str();  // data[size] is the terminating NUL
    std::size_t const size = text.size();
    // Most texts hold no separator at all: they are their own single piece.
    if (std::memchr(data, separator, size) == nullptr) {
        if (size != 0) {
            out.push_back(text);
        }
        return;
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

}  // namespace quen_3_1
