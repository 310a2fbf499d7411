#ifndef QUEN_3_1_VALUES_SEPARATOR_SPLIT_H
#define QUEN_3_1_VALUES_SEPARATOR_SPLIT_H

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace quen_3_1 {

// Splits name lists and value texts. The character right after a separator
// always joins the next piece untested, and a trailing separator yields a
// final one-character NUL piece: "a,,b" -> "a", ",b"; "a," -> "a", "\0";
// "," -> "", "\0". Hosts depend on these results, so they are kept.
void splitAtSeparator(std::string const& text, char separator, std::vector<std::string>& out);

// The pieces of `text` as splitAtSeparator cuts them, handed to
// `piece(std::string_view)` in order. `text` must be followed by its NUL,
// which a trailing separator's piece views.
template <class Piece>
void forEachPiece(std::string_view text, char separator, Piece&& piece) {
    char const* const data = text.data();
    std::size_t const size = text.size();
    // Each search skips to the next separator; the character right after one
    // is never tested.
    std::size_t start = 0;
    std::size_t pos = 0;
    while (pos < size) {
        void const* const hit = std::memchr(data + pos, separator, size - pos);
        if (hit == nullptr) {
            pos = size;
            break;
        }
        auto const at = static_cast<std::size_t>(static_cast<char const*>(hit) - data);
        piece(std::string_view(data + start, at - start));
        start = at + 1;
        pos = at + 2;
    }
    if (start != pos) {
        piece(std::string_view(data + start, pos - start));
    }
}

}  // namespace quen_3_1

#endif
