#include "quen_3_1/quen.h"

namespace quen_3_1 {

// The text of a record that carries no value is never handed out.
template <>
char const* Value::as<char const*>() const {
    return m_status == 0 ? m_text : nullptr;
}

}  // namespace quen_3_1
