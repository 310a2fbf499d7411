#ifndef QUEN_3_1_FRONTEND_TRACE_H
#define QUEN_3_1_FRONTEND_TRACE_H

#include <ostream>
#include <streambuf>

namespace quen_3_1 {
namespace internal {

// The trace switch of the calling thread; each parse resets it and the switch
// argument sets it. One per thread, so that a parse traced on one thread never
// makes another thread's parse print its arguments.
extern thread_local bool quenLogEnabled;

// A stream buffer whose writes all fail, so a stream over it discards output.
template <class CharT>
class basic_nullbuf : public std::basic_streambuf<CharT> {
public:
    ~basic_nullbuf() override = default;
};

// The trace stream: standard output while tracing, a discarding stream otherwise.
std::ostream& quenLog();

// Writes one trace line made of `parts`, ended by std::endl. While tracing is
// off the line would go to the discarding stream, so nothing is formatted at
// all: recognition writes several lines per argument.
template <class... Parts>
void trace(Parts const&... parts) {
    if (!quenLogEnabled) {
        return;
    }
    std::ostream& out = quenLog();
    (out << ... << parts) << std::endl;
}

}  // namespace internal
}  // namespace quen_3_1

#endif
