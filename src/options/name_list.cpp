#include "options/name_list.h"

#include <stdexcept>
#include <utility>

namespace quen_3_1 {

NameList::NameList(NameList const& other) {
    for (std::string_view const name : other) {
        own(name);
    }
}

NameList& NameList::operator=(NameList const& other) {
    if (this != &other) {
        NameList copy(other);
        *this = std::move(copy);
    }
    return *this;
}

// The owned texts live on the heap, so the moved views stay valid.
NameList::NameList(NameList&& other) noexcept
    : m_first(other.m_first), m_size(other.m_size), m_spill(std::move(other.m_spill)) {
    other.m_size = 0;
}

NameList& NameList::operator=(NameList&& other) noexcept {
    if (this != &other) {
        m_first = other.m_first;
        m_size = other.m_size;
        m_spill = std::move(other.m_spill);
        other.m_size = 0;
    }
    return *this;
}

void NameList::own(std::string_view text) {
    std::deque<std::string>& owned = spill().owned;
    owned.emplace_back(text);
    view(owned.back());
}

void NameList::throwPastTheEnd() { throw std::out_of_range("NameList::at"); }

NameList::Spill& NameList::spill() {
    if (m_spill == nullptr) {
        m_spill = std::make_unique<Spill>();
    }
    return *m_spill;
}

}  // namespace quen_3_1
