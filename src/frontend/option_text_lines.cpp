#include "frontend/option_text_lines.h"

#include <algorithm>
#include <cstring>
#include <locale>

namespace quen_3_1 {

// Trailing blanks and tabs are data. Lines end at '\n' only; the piece after
// a final '\n' is empty and adds nothing.
std::vector<std::pair<std::size_t, std::size_t>> argumentSpansOfText(std::string const& text) {
    std::vector<std::pair<std::size_t, std::size_t>> args;
    args.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
    std::ctype<char> const& ctype = std::use_facet<std::ctype<char>>(std::locale());
    char const* line = text.data();
    char const* const end = line + text.size();
    while (line != end) {
        auto const* const newline =
            static_cast<char const*>(std::memchr(line, '\n', static_cast<std::size_t>(end - line)));
        char const* const lineEnd = newline == nullptr ? end : newline;
        char const* const first = ctype.scan_not(std::ctype_base::space, line, lineEnd);
        if (first != lineEnd && *first != ';' && *first != '#') {
            char const* last = lineEnd;
            while (last != first && last[-1] == '\r') {
                --last;
            }
            if (last != first) {
                args.emplace_back(static_cast<std::size_t>(first - text.data()),
                                  static_cast<std::size_t>(last - first));
            }
        }
        if (newline == nullptr) {
            break;
        }
        line = newline + 1;
    }
    return args;
}

}  // namespace quen_3_1
