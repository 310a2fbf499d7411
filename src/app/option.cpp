// Option<T>: the host's handle on one declaration, refining its binding.
#include <utility>

#include "app/bound_option.h"
#include "app/instance_types.h"
#include "quen_3_1/app.h"

namespace quen_3_1 {

namespace {

// Every declaration an Option<T> refers to was made for T.
template <class T>
app_detail::TypedBinding<T>& typed(app_detail::OptionState* state) {
    return static_cast<app_detail::BoundOption<T>*>(state)->typed();
}

}  // namespace

template <class T>
Option<T>::Option(app_detail::OptionState* state) : m_state(state) {}

template <class T>
Option<T>& Option<T>::required() {
    m_state->m_required = true;
    m_state->refine();
    return *this;
}

template <class T>
Option<T>& Option<T>::allow(std::vector<Element> values) {
    typed<T>(m_state).allow(std::move(values));
    m_state->m_allows = true;
    return *this;
}

template <class T>
Option<T>& Option<T>::setRange(Element lowest, Element highest) {
    typed<T>(m_state).range(lowest, highest);
    m_state->m_ranged = true;
    m_state->refine();
    return *this;
}

template <class T>
Option<T>& Option<T>::check(std::function<std::string(Element const&)> test) {
    typed<T>(m_state).check(std::move(test));
    return *this;
}

template <class T>
Option<T>& Option<T>::env(std::string variable) {
    m_state->links().env = std::move(variable);
    return *this;
}

template <class T>
Option<T>& Option<T>::needs(std::string other) {
    m_state->links().needs.push_back(std::move(other));
    return *this;
}

template <class T>
Option<T>& Option<T>::excludes(std::string other) {
    m_state->links().excludes.push_back(std::move(other));
    return *this;
}

template <class T>
Option<T>& Option<T>::split(char separator) {
    m_state->m_separator = separator;
    return *this;
}

template <class T>
Option<T>& Option<T>::hidden() {
    m_state->m_hidden = true;
    return *this;
}

// The macro argument is a type used as a template argument: it can not be parenthesized.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define QUEN_APP_INSTANTIATE(T)              \
    template class Option<T>;                \
    template class Option<std::optional<T>>; \
    template class Option<std::vector<T>>;
QUEN_APP_FOR_EACH_ELEMENT(QUEN_APP_INSTANTIATE)
#undef QUEN_APP_INSTANTIATE
// NOLINTEND(bugprone-macro-parentheses)

}  // namespace quen_3_1
