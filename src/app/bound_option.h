// A declaration together with its binding and the host's handle on it.
#ifndef QUEN_3_1_SRC_APP_BOUND_OPTION_H
#define QUEN_3_1_SRC_APP_BOUND_OPTION_H

#include "app/option_state.h"
#include "app/typed_binding.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

template <class T>
class BoundOption final : public OptionState {
public:
    explicit BoundOption(T& target)
        : OptionState(TypedBinding<T>::kKind, TypedBinding<T>::kMany), m_typed(target), m_handle(this) {
        bind(m_typed);
    }

    TypedBinding<T>& typed() { return m_typed; }
    Option<T>& handle() { return m_handle; }

private:
    TypedBinding<T> m_typed;
    Option<T> m_handle;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_BOUND_OPTION_H
