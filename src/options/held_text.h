#ifndef QUEN_3_1_OPTIONS_HELD_TEXT_H
#define QUEN_3_1_OPTIONS_HELD_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace quen_3_1 {

// A text that either views storage its owner keeps alive for as long as it
// (a registry's arena: no allocation per registered option) or owns its
// characters. A copy always owns them, so it outlives what the original
// viewed; a move keeps viewing, the viewed storage being nobody's member.
class HeldText {
public:
    HeldText() = default;
    explicit HeldText(std::string text) : m_own(std::move(text)) {}
    // `text` must outlive this object, though not its copies.
    static HeldText viewing(std::string_view text) { return HeldText(text.data(), text.size()); }

    HeldText(HeldText const& other) : m_own(other.view()) {}
    HeldText& operator=(HeldText const& other) {
        if (this != &other) {
            m_own.assign(other.view().data(), other.view().size());
            m_viewed = nullptr;
            m_size = 0;
        }
        return *this;
    }
    HeldText(HeldText&& other) noexcept = default;
    HeldText& operator=(HeldText&& other) noexcept = default;
    ~HeldText() = default;

    std::string_view view() const { return m_viewed != nullptr ? std::string_view(m_viewed, m_size) : m_own; }

private:
    HeldText(char const* viewed, std::size_t size) : m_viewed(viewed), m_size(size) {}

    std::string m_own;
    char const* m_viewed = nullptr;  // null: the text is m_own
    std::size_t m_size = 0;
};

}  // namespace quen_3_1

#endif
