// Completion scripts for a whole program: at each command level the level's
// options and the names of its commands. Every name is written in single
// quotes, so no name can become shell code.
#ifndef QUEN_3_1_SRC_APP_COMPLETION_TREE_H
#define QUEN_3_1_SRC_APP_COMPLETION_TREE_H

#include <string>

#include "app/app_state.h"

namespace quen_3_1::app_detail {

// The script for "bash", "zsh" or "fish"; empty for any other shell.
std::string completionScript(AppState const& root, std::string const& shell);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_COMPLETION_TREE_H
