#ifndef QUEN_3_1_RECOGNIZERS_RECOGNITION_H
#define QUEN_3_1_RECOGNIZERS_RECOGNITION_H

#include <cstddef>
#include <vector>

namespace quen_3_1 {

// What a recognizer found in the front argument; the recognizer chosen to
// consume the argument works from this alone instead of looking again.
struct Recognition {
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    std::size_t option = npos;  // the candidate option's index in the registry
    // The matched name begins with "no-": a boolean stores "0". An option whose
    // own name begins so counts too, as hosts have always seen it.
    bool noForm = false;
    std::size_t nameStart = 0;      // the typed name within the argument
    std::size_t nameEnd = 0;        // one past it: the first '=' or the end
    std::size_t valueStart = npos;  // after the first '='; npos without one
    std::size_t arguments = 1;      // arguments taken: 2 when the value is the next one
    std::vector<std::size_t> tied;  // the candidates of an ambiguous name; empty otherwise
};

}  // namespace quen_3_1

#endif
