// --help of one App level: usage line, about text, the library's option
// help, the positionals, the commands and the epilog.
#ifndef QUEN_3_1_SRC_APP_HELP_TEXT_H
#define QUEN_3_1_SRC_APP_HELP_TEXT_H

#include <string>

#include "app/app_state.h"

namespace quen_3_1::app_detail {

// "Usage: PROGRAM [options] <files>...\n"
std::string usageLine(AppState const& app);

// `description` is the library's help text of the registered options.
std::string helpText(AppState const& app, std::string const& description);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_HELP_TEXT_H
