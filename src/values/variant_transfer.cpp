#include "values/variant_transfer.h"

namespace quen_3_1 {

namespace {

bool ownsMemory(kel_variant_type_t type) {
    return type == tarvo2::vt_str || type == tarvo2::vt_wstr || type == tarvo2::vt_blob;
}

// A variant that shows a payload it does not own: it is emptied before the
// variant's own destructor could release anything, on every path.
struct Borrowed {
    explicit Borrowed(Payload payload) {
        value.m_data = payload.data;
        value.m_type = payload.type;
    }
    Borrowed(Borrowed const&) = delete;
    Borrowed& operator=(Borrowed const&) = delete;
    ~Borrowed() {
        value.m_data = 0;
        value.m_type = tarvo2::vt_empty;
    }
    tarvo2::variant_t value;
};

}  // namespace

Payload copyPayload(tarvo2::variant_t const& value) {
    tarvo2::variant_t copy(value);
    return takePayload(copy);
}

Payload takePayload(tarvo2::variant_t& value) {
    Payload const taken{value.m_data, value.m_type};
    value.m_data = 0;
    value.m_type = tarvo2::vt_empty;
    return taken;
}

void releasePayload(Payload payload) {
    tarvo2::variant_t owner;
    owner.m_data = payload.data;
    owner.m_type = payload.type;
}

// Numbers and borrowed texts are copied as they are, which is all the
// assignment would do for them.
void assignPayload(tarvo2::variant_t& target, Payload payload) {
    if (!ownsMemory(payload.type) && !ownsMemory(target.m_type)) {
        target.m_data = payload.data;
        target.m_type = payload.type;
        return;
    }
    Borrowed const shown(payload);
    target = shown.value;
}

}  // namespace quen_3_1
