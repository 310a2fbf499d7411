#ifndef QUEN_3_1_RECOGNIZERS_ARGUMENT_LIST_H
#define QUEN_3_1_RECOGNIZERS_ARGUMENT_LIST_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quen_3_1 {

// The arguments still to be recognized. Recognizers read the front and drop
// what they consume; dropping costs O(1), so long command lines stay linear.
class ArgumentList {
public:
    ArgumentList() = default;
    explicit ArgumentList(std::vector<std::string> items) : m_items(std::move(items)) {}

    bool empty() const { return m_front == m_items.size(); }
    std::size_t size() const { return m_items.size() - m_front; }
    // The argument `index` places after the front.
    std::string const& operator[](std::size_t index) const { return m_items[m_front + index]; }
    void popFront() { ++m_front; }

private:
    std::vector<std::string> m_items;
    std::size_t m_front = 0;
};

}  // namespace quen_3_1

#endif
