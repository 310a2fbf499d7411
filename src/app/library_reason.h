// The library's value messages name the argument they came from; for values
// the user did not type as an argument (an environment variable, a positional
// checked on its own) the layer keeps only the reason.
#ifndef QUEN_3_1_SRC_APP_LIBRARY_REASON_H
#define QUEN_3_1_SRC_APP_LIBRARY_REASON_H

#include <string>

namespace quen_3_1::app_detail {

// `error` without the library's "...in argument 'ARGUMENT': " lead, when it has one.
std::string libraryReason(std::string const& error, std::string const& argument);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_LIBRARY_REASON_H
