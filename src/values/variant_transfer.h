#ifndef QUEN_3_1_VALUES_VARIANT_TRANSFER_H
#define QUEN_3_1_VALUES_VARIANT_TRANSFER_H

#include "quen_3_1/quen.h"

namespace quen_3_1 {

// Hands what `source` holds to `target` without copying an owned text or
// block: `target`'s own content is released first and `source` is left empty.
// The library's intermediate values move along this way instead of being
// copied through the memory hooks at every step.
inline void transferVariant(tarvo2::variant_t& target, tarvo2::variant_t& source) {
    if (&target == &source) {
        return;
    }
    target.free_data();
    target.m_data = source.m_data;
    target.m_type = source.m_type;
    source.m_data = 0;
    source.m_type = tarvo2::vt_empty;
}

}  // namespace quen_3_1

#endif
