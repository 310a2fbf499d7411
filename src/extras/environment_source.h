#ifndef QUEN_3_1_EXTRAS_ENVIRONMENT_SOURCE_H
#define QUEN_3_1_EXTRAS_ENVIRONMENT_SOURCE_H

#include <functional>
#include <string>

namespace quen_3_1 {

class RegisteredOptionStorage;

// PREFIX + the name upper-cased with '-' turned into '_': "APP_" and
// "log-file" give APP_LOG_FILE.
std::string environmentVariableName(std::string const& prefix, std::string const& name);

// Reads a variable: its text, or null when it is not set.
using EnvironmentLookup = std::function<char const*(std::string const& variable)>;

// The option text, one argument a line, that the variables of all visible
// options taking a value stand for, in registration order. An empty variable
// counts as unset: the recognizer has no empty values. Returns 0, or 2 with
// `error` set when a value holds a line break, which would smuggle in another
// argument.
int environmentArguments(RegisteredOptionStorage const& storage, std::string const& prefix,
                         EnvironmentLookup const& lookup, std::string& text, std::string& error);

}  // namespace quen_3_1

#endif
