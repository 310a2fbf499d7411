#ifndef QUEN_3_1_VALUES_GARBAGE_H
#define QUEN_3_1_VALUES_GARBAGE_H

#include <string>
#include <unordered_set>

namespace quen_3_1 {

// Interns texts so that the plain pointers handed to hosts outlive the call
// that produced them. Texts are never removed; they die with the keeper,
// which its owner holds as a plain member.
class Garbage final {
public:
    Garbage() = default;
    Garbage(Garbage const&) = delete;
    Garbage& operator=(Garbage const&) = delete;
    ~Garbage() = default;

    // Stored copy of `text`; equal texts give the same pointer. Null gives "".
    virtual char const* init(char const* text);
    // Same for a text already held as a string (it may hold NUL characters).
    char const* keep(std::string const& text);

private:
    // Nodes never move, so the pointers handed out stay valid as it grows.
    std::unordered_set<std::string> m_strings;
};

}  // namespace quen_3_1

#endif
