#ifndef QUEN_3_1_VALUES_VARIANT_TRANSFER_H
#define QUEN_3_1_VALUES_VARIANT_TRANSFER_H

#include <cstdint>

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

// A variant's content held as plain data (payload word and kind), so that
// stores of many values move them with memcpy. Whoever holds one owns its
// text or block and gives it back with releasePayload().
struct Payload {
    std::uint64_t data;
    kel_variant_type_t type;
};

// A deep copy of `value` as a payload.
Payload copyPayload(tarvo2::variant_t const& value);
// Takes what `value` holds, leaving it empty; nothing is copied.
Payload takePayload(tarvo2::variant_t& value);
// Gives the owned text or block of `payload` back through the memory hooks.
void releasePayload(Payload payload);
// Assigns a deep copy of `payload` to `target`, as variant assignment does.
void assignPayload(tarvo2::variant_t& target, Payload payload);

}  // namespace quen_3_1

#endif
