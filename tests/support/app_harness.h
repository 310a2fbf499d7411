#ifndef QUEN_TESTS_SUPPORT_APP_HARNESS_H
#define QUEN_TESTS_SUPPORT_APP_HARNESS_H

// Helpers for tests of the application layer, used as a host uses it.
#include <quen_3_1/app.h>

#include <string>
#include <vector>

namespace quen_test {

// Parses `arguments` as argv[1..]; argv[0] is the program name, as main() gets it.
inline quen_3_1::Result parseLine(quen_3_1::App& app, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "prog");
    std::vector<char const*> argv;
    for (std::string const& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    argv.push_back(nullptr);
    return app.parse(static_cast<int>(arguments.size()), argv.data());
}

// The usage and hint lines that follow every error of a program named "prog" without positionals.
inline std::string errorTail(std::string const& program = "prog") {
    return "Usage: " + program + " [options]\nTry '" + program + " --help' for more information.\n";
}

}  // namespace quen_test

#endif  // QUEN_TESTS_SUPPORT_APP_HARNESS_H
