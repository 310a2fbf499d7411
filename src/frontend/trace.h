#ifndef QUEN_3_1_FRONTEND_TRACE_H
#define QUEN_3_1_FRONTEND_TRACE_H

#include <ostream>
#include <streambuf>

namespace quen_3_1 {
namespace internal {

// Process-wide trace switch; each parse resets it and the switch argument sets it.
extern bool quenLogEnabled;

// A stream buffer whose writes all fail, so a stream over it discards output.
template <class CharT>
class basic_nullbuf : public std::basic_streambuf<CharT> {
public:
    ~basic_nullbuf() override = default;
};

// The trace stream: standard output while tracing, a discarding stream otherwise.
std::ostream& quenLog();

}  // namespace internal
}  // namespace quen_3_1

#endif
