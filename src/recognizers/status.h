#ifndef QUEN_3_1_RECOGNIZERS_STATUS_H
#define QUEN_3_1_RECOGNIZERS_STATUS_H

namespace quen_3_1 {

// How a step of a parse ended. The public calls answer its number, so the
// numbers are those hosts have always seen.
enum class Status {
    Ok = 0,
    Vetoed = 1,            // a handler refused a value
    Failed = 2,            // the arguments are wrong; the message says how
    Refused = 3,           // a standard exception, or a call that cannot be served
    Unidentified = 4,      // any other exception
    NumbersExhausted = 5,  // no sequence number left in this process
};

inline int codeOf(Status status) { return static_cast<int>(status); }

}  // namespace quen_3_1

#endif
