#ifndef QUEN_3_1_FRONTEND_TRACE_H
#define QUEN_3_1_FRONTEND_TRACE_H

#include <atomic>
#include <ostream>

namespace quen_3_1 {
namespace internal {

// The trace switch of one thread, used like a bool. It also keeps count of
// the threads whose switch is on, so that trace() can tell from one plain
// load that nobody traces (nearly always), without reaching thread-local
// storage. A thread that ends with its switch on leaves the count raised:
// trace() then looks at the switch of its own thread, which costs a little.
class TraceSwitch {
public:
    constexpr TraceSwitch() = default;
    TraceSwitch& operator=(bool on);
    // Implicit, so that the switch reads like the bool it once was.
    operator bool() const { return m_on; }

    // True when the switch of any thread is on.
    static bool anyOn() { return s_threadsOn.load(std::memory_order_relaxed) != 0; }

private:
    bool m_on = false;
    static std::atomic<int> s_threadsOn;
};

// The trace switch of the calling thread; each parse resets it and the switch
// argument sets it. One per thread, so that a parse traced on one thread never
// makes another thread's parse print its arguments.
extern thread_local TraceSwitch quenLogEnabled;

// The trace stream: standard output while tracing, otherwise a stream without
// a buffer, which fails and discards every write.
std::ostream& quenLog();

// Writes one trace line made of `parts`, ended by std::endl. While tracing is
// off the line would go to the discarding stream, so nothing is formatted at
// all: recognition writes several lines per argument.
template <class... Parts>
void trace(Parts const&... parts) {
    if (!TraceSwitch::anyOn() || !quenLogEnabled) {
        return;
    }
    std::ostream& out = quenLog();
    (out << ... << parts) << std::endl;
}

}  // namespace internal
}  // namespace quen_3_1

#endif
