#ifndef QUENOPT_LINE_CLAIMS_H
#define QUENOPT_LINE_CLAIMS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quenopt {

// Which table line claimed a name or a variable first. An open-addressing
// table (linear probing, at most half full) of 8-byte slots: a part of the
// text's hash and the number of the claim. The texts themselves sit one after
// the other in a single store, read only when the hash parts agree. A lookup
// of a new text thus touches one short run of slots, and a table of a hundred
// thousand options stays small enough for the caches.
class LineClaims {
public:
    // Room for `count` claims without growing.
    void reserve(std::size_t count);
    // The hash that the calls below take with `text`.
    static std::uint64_t hashOf(std::string_view text);
    // Starts loading the slot where a lookup of the hash begins: lookups of
    // several texts announced first wait for memory once, not once each.
    void prefetch(std::uint64_t hash) const;
    // The line that claimed `text`, or 0 when none did.
    int lineOf(std::string_view text, std::uint64_t hash) const;
    // Records `line` for `text` unless an earlier line claimed it.
    void claim(std::string_view text, std::uint64_t hash, int line);

private:
    struct Slot {
        std::uint32_t tag = 0;    // the high half of the text's hash
        std::uint32_t claim = 0;  // 1 + the claim's index; 0: empty
    };

    std::string_view textOf(std::size_t claim) const;
    std::size_t find(std::string_view text, std::uint64_t hash) const;
    void place(std::uint64_t hash, std::uint32_t claim);
    void grow(std::size_t slots);

    std::vector<Slot> m_slots;
    std::string m_texts;              // the claimed texts, end to end
    std::vector<std::size_t> m_ends;  // by claim: where its text ends in m_texts
    std::vector<int> m_lines;         // by claim: the line that claimed it
};

}  // namespace quenopt

#endif
