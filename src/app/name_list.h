// Name lists as App takes them ("jobs,j"): split and checked before the
// library sees them, so that it never refuses one (and never writes to stderr).
#ifndef QUEN_3_1_SRC_APP_NAME_LIST_H
#define QUEN_3_1_SRC_APP_NAME_LIST_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quen_3_1::app_detail {

// The names of one list as places in its text: splitting copies no name, and
// the places stay right wherever the text is moved.
class NameList {
public:
    static constexpr std::size_t kMostNames = 3;

    // The names of `text`; empty when the list breaks the rules (an empty name,
    // a leading '-', '=' or a blank, more than three names, a long third name).
    static NameList split(std::string_view text);

    std::size_t size() const { return m_count; }
    bool empty() const { return m_count == 0; }
    // Name `i`, read from the text that was split (or a copy of it).
    std::string_view at(std::string_view text, std::size_t i) const {
        return text.substr(m_places[i].offset, m_places[i].size);
    }

private:
    // Fills the list name by name; false when the text breaks the rules.
    bool splitEach(std::string_view text);

    struct Place {
        std::uint32_t offset = 0;
        std::uint32_t size = 0;
    };

    std::array<Place, kMostNames> m_places{};
    std::size_t m_count = 0;
};

// In the library's lookup a flag also answers to its name after this prefix.
constexpr char kNegation[] = "no-";

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_NAME_LIST_H
