#ifndef QUEN_3_1_RECOGNIZERS_ARGUMENT_LIST_H
#define QUEN_3_1_RECOGNIZERS_ARGUMENT_LIST_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quen_3_1 {

// The arguments still to be recognized. Recognizers read the front and drop
// what they consume; dropping costs O(1), so long command lines stay linear.
// Each argument is a view followed by a NUL in memory the list owns or that
// outlives it (a host's argv), so a command line is never copied argument by
// argument. The views point into the list itself, so it is neither copied
// nor moved.
class ArgumentList {
public:
    ArgumentList() = default;
    // Owns the texts.
    explicit ArgumentList(std::vector<std::string> items);
    // Views of the host's texts, which outlive the list.
    explicit ArgumentList(std::vector<std::string_view> views) : m_items(std::move(views)) {}
    // Owns `text`; each span (start, size) is one argument, and the character
    // after it, which the argument does not need, becomes its NUL.
    ArgumentList(std::string text, std::vector<std::pair<std::size_t, std::size_t>> const& spans);
    ArgumentList(ArgumentList const&) = delete;
    ArgumentList& operator=(ArgumentList const&) = delete;
    ArgumentList(ArgumentList&&) = delete;
    ArgumentList& operator=(ArgumentList&&) = delete;
    ~ArgumentList() = default;

    bool empty() const { return m_front == m_items.size(); }
    std::size_t size() const { return m_items.size() - m_front; }
    // The argument `index` places after the front; its data() is NUL-terminated.
    std::string_view operator[](std::size_t index) const { return m_items[m_front + index]; }
    void popFront() { ++m_front; }

private:
    std::vector<std::string> m_owned;
    std::string m_text;
    std::vector<std::string_view> m_items;
    std::size_t m_front = 0;
};

}  // namespace quen_3_1

#endif
