#ifndef QUEN_3_1_RESULTS_OWN_RESULT_H
#define QUEN_3_1_RESULTS_OWN_RESULT_H

#include <typeinfo>

#include "results/parse_result.h"

namespace quen_3_1 {

// The library's own result behind a host's pointer, or null for one the host
// implemented itself. ParseResult is final, so its exact type decides: no
// search through a class hierarchy, and no call into the runtime for it.
inline ParseResult* ownResult(IParseResult* result) {
    return result != nullptr && typeid(*result) == typeid(ParseResult) ? static_cast<ParseResult*>(result) : nullptr;
}

}  // namespace quen_3_1

#endif
