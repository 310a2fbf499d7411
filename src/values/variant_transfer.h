#ifndef QUEN_3_1_VALUES_VARIANT_TRANSFER_H
#define QUEN_3_1_VALUES_VARIANT_TRANSFER_H

#include <cstdint>
#include <cstring>

#include "quen_3_1/quen.h"

namespace quen_3_1 {

// True when `value` holds a text or block of its own, which free_data() releases.
inline bool ownsMemory(tarvo2::variant_t const& value) {
    return value.m_type == tarvo2::vt_str || value.m_type == tarvo2::vt_wstr || value.m_type == tarvo2::vt_blob;
}

// Empties `target`, releasing what it owns. Releasing a number would be an
// out-of-line call for nothing.
inline void clearVariant(tarvo2::variant_t& target) {
    if (ownsMemory(target)) {
        target.free_data();
    }
    target.m_data = 0;
    target.m_type = tarvo2::vt_empty;
}

// Hands what `source` holds to `target` without copying an owned text or
// block: `target`'s own content is released first and `source` is left empty.
// The library's intermediate values move along this way instead of being
// copied through the memory hooks at every step.
inline void transferVariant(tarvo2::variant_t& target, tarvo2::variant_t& source) {
    if (&target == &source) {
        return;
    }
    clearVariant(target);
    target.m_data = source.m_data;
    target.m_type = source.m_type;
    source.m_data = 0;
    source.m_type = tarvo2::vt_empty;
}

// Gives `target`, which owns nothing, the number `value` laid out as the
// variant's constructor from T lays it out, without a temporary variant
// (whose construction and destruction are out-of-line calls).
inline void setNumber(tarvo2::variant_t& target, bool value) {
    target.m_data = value ? 1 : 0;
    target.m_type = tarvo2::vt_bool;
}
inline void setNumber(tarvo2::variant_t& target, int value) {
    target.m_data = static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
    target.m_type = tarvo2::vt_int;
}
inline void setNumber(tarvo2::variant_t& target, unsigned int value) {
    target.m_data = value;
    target.m_type = tarvo2::vt_uint;
}
inline void setNumber(tarvo2::variant_t& target, long long value) {
    target.m_data = static_cast<std::uint64_t>(value);
    target.m_type = tarvo2::vt_int64;
}
inline void setNumber(tarvo2::variant_t& target, unsigned long long value) {
    target.m_data = value;
    target.m_type = tarvo2::vt_uint64;
}
inline void setNumber(tarvo2::variant_t& target, double value) {
    std::memcpy(&target.m_data, &value, sizeof value);
    target.m_type = tarvo2::vt_double;
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
