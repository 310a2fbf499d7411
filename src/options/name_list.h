#ifndef QUEN_3_1_OPTIONS_NAME_LIST_H
#define QUEN_3_1_OPTIONS_NAME_LIST_H

#include <array>
#include <cstddef>
#include <deque>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quen_3_1 {

// The names of one option, in the order they were given. A registered
// option's names view text its registry keeps, and the three a declaration
// may list take no allocation; later synonyms spill into a vector. A copy
// owns copies of every name, so it outlives the registry as a copy of the
// description does. The texts of a description's names are followed by a NUL.
class NameList {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = std::string_view;
        using difference_type = std::ptrdiff_t;
        using pointer = std::string_view const*;
        using reference = std::string_view;

        Iterator(NameList const* list, std::size_t at) : m_list(list), m_at(at) {}
        std::string_view operator*() const { return (*m_list)[m_at]; }
        Iterator& operator++() {
            ++m_at;
            return *this;
        }
        bool operator==(Iterator const& other) const { return m_at == other.m_at; }
        bool operator!=(Iterator const& other) const { return m_at != other.m_at; }

    private:
        NameList const* m_list;
        std::size_t m_at;
    };

    NameList() = default;
    NameList(NameList const& other);
    NameList& operator=(NameList const& other);
    NameList(NameList&& other) noexcept;
    NameList& operator=(NameList&& other) noexcept;
    ~NameList() = default;

    // Appends a view of `text`, which the caller keeps for as long as this list.
    void view(std::string_view text) {
        if (m_size < kInline) {
            m_first[m_size] = text;
        } else {
            spill().more.push_back(text);
        }
        ++m_size;
    }
    // Appends a copy of `text` that this list keeps.
    void own(std::string_view text);

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    std::string_view operator[](std::size_t i) const { return i < kInline ? m_first[i] : m_spill->more[i - kInline]; }
    // Throws std::out_of_range past the last name.
    std::string_view at(std::size_t i) const {
        if (i >= m_size) {
            throwPastTheEnd();
        }
        return (*this)[i];
    }
    Iterator begin() const { return Iterator(this, 0); }
    Iterator end() const { return Iterator(this, m_size); }

private:
    static constexpr std::size_t kInline = 3;

    // Names past the third, and the texts this list owns.
    struct Spill {
        std::vector<std::string_view> more;
        std::deque<std::string> owned;  // a deque never moves its strings
    };

    Spill& spill();
    [[noreturn]] static void throwPastTheEnd();

    std::array<std::string_view, kInline> m_first{};
    std::size_t m_size = 0;
    std::unique_ptr<Spill> m_spill;
};

}  // namespace quen_3_1

#endif
