#ifndef QUENOPT_LINE_CLAIMS_H
#define QUENOPT_LINE_CLAIMS_H

#include <cstddef>
#include <string>
#include <vector>

namespace quenopt {

// Which table line claimed a name or a variable first. An open-addressing
// table (linear probing, at most half full) whose slots hold the text, its
// hash and the line: a lookup reads one run of adjacent slots, so a table of
// a hundred thousand options is checked at nearly the cost per line of a
// small one, where a table of nodes spread over the heap was not.
class LineClaims {
public:
    // Room for `count` claims without growing.
    void reserve(std::size_t count);
    // The line that claimed `text`, or 0 when none did.
    int lineOf(std::string const& text) const;
    // Records `line` for `text` unless an earlier line claimed it.
    void claim(std::string const& text, int line);

private:
    struct Slot {
        std::size_t hash = 0;
        int line = 0;  // 0: empty (table lines count from 1)
        std::string text;
    };

    std::size_t find(std::string const& text, std::size_t hash) const;
    void grow(std::size_t slots);

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
};

}  // namespace quenopt

#endif
