#include "frontend/trace.h"

#include <memory>

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

// Created on first use; at exit the stream goes before its buffer.
struct DiscardingStream {
    std::unique_ptr<basic_nullbuf<char>> buffer;
    std::unique_ptr<std::ostream> stream;

    ~DiscardingStream() {
        stream.reset();
        buffer.reset();
    }

    std::ostream& get() {
        if (!stream) {
            buffer = std::make_unique<basic_nullbuf<char>>();
            stream = std::make_unique<std::ostream>(buffer.get());
        }
        return *stream;
    }
};

}  // namespace

std::ostream& quenLog() {
    if (quenLogEnabled) {
        return ORNA_2_10::strings::tv2::console();
    }
    static DiscardingStream discarding;
    return discarding.get();
}

}  // namespace internal
}  // namespace quen_3_1
