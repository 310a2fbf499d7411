#include "values/separator_split.h"

#include <cstring>

namespace quen_3_1 {

namespace {

// The separators from `first`, one of them, to `end`. Names hold a few: a
// search per separator beats a test per character.
std::size_t separatorsFrom(char const* first, char const* end, char separator) {
    std::size_t count = 0;
    for (void const* at = first; at != nullptr;
         at = std::memchr(static_cast<char const*>(at) + 1, separator,
                          static_cast<std::size_t>(end - static_cast<char const*>(at) - 1))) {
        ++count;
    }
    return count;
}

// `data[size]` is the terminating NUL, which a trailing separator's piece holds.
void splitTerminated(char const* data, std::size_t size, char separator, std::vector<std::string>& out) {
    // Most texts hold no separator at all: they are their own single piece.
    auto const* const first = static_cast<char const*>(std::memchr(data, separator, size));
    if (first == nullptr) {
        if (size != 0) {
            out.emplace_back(data, size);
        }
        return;
    }
    // Each separator ends at most one piece: one allocation for a new list. A
    // list appended to keeps its geometric growth.
    if (out.empty()) {
        out.reserve(separatorsFrom(first, data + size, separator) + 1);
    }
    forEachPiece(std::string_view(data, size), separator,
                 [&out](std::string_view piece) { out.emplace_back(piece.data(), piece.size()); });
}

}  // namespace

void splitAtSeparator(std::string const& text, char separator, std::vector<std::string>& out) {
    splitTerminated(text.c_str(), text.size(), separator, out);
}

}  // namespace quen_3_1
