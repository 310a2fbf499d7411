#include "frontend/trace.h"

#include "frontend/ustring.h"

namespace quen_3_1 {
namespace internal {

std::atomic<int> TraceSwitch::s_threadsOn{0};

thread_local TraceSwitch quenLogEnabled;

TraceSwitch& TraceSwitch::operator=(bool on) {
    if (on != m_on) {
        s_threadsOn.fetch_add(on ? 1 : -1, std::memory_order_relaxed);
        m_on = on;
    }
    return *this;
}

namespace {

// Created on first use. Without a buffer of its own, the library defines no
// stream buffer class, whose table of virtual functions would have the
// dynamic linker look up every member of the standard one at load.
struct DiscardingStream {
    std::ostream stream{nullptr};
};

}  // namespace

std::ostream& quenLog() {
    if (quenLogEnabled) {
        return ORNA_2_10::strings::tv2::console();
    }
    static DiscardingStream discarding;
    return discarding.stream;
}

}  // namespace internal
}  // namespace quen_3_1
