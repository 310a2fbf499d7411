#ifndef QUEN_3_1_OPTIONS_HELD_TEXT_H
#define QUEN_3_1_OPTIONS_HELD_TEXT_H

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace quen_3_1 {

// A text that either views storage its owner keeps alive for as long as it
// (a registry's arena: no allocation per registered option) or owns its
// characters. A copy always owns them, so it outlives what the original
// viewed; a move keeps viewing, the viewed storage being nobody's member.
// Owned characters lie on the heap, so that a description stays small enough
// for several to share one block of its registry.
class HeldText {
public:
    HeldText() = default;
    explicit HeldText(std::string text) {
        if (!text.empty()) {
            m_own = std::make_unique<std::string>(std::move(text));
            m_view = *m_own;
        }
    }
    // `text` must outlive this object, though not its copies.
    static HeldText viewing(std::string_view text) {
        HeldText held;
        held.m_view = text;
        return held;
    }

    HeldText(HeldText const& other) : HeldText(std::string(other.view())) {}
    HeldText& operator=(HeldText const& other) {
        if (this != &other) {
            *this = HeldText(other);
        }
        return *this;
    }
    HeldText(HeldText&& other) noexcept = default;
    HeldText& operator=(HeldText&& other) noexcept = default;
    ~HeldText() = default;

    std::string_view view() const { return m_view; }

private:
    std::unique_ptr<std::string> m_own;
    std::string_view m_view;  // of m_own when this object owns its text
};

}  // namespace quen_3_1

#endif
