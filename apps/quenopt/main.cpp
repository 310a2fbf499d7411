// quenopt: the library's option parsing for POSIX shell scripts.
//   eval "$(quenopt --table FILE [--format sh|bash|json] [--prefix P] [--flags N] -- "$@")" || exit
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "fail_closed.h"
#include "option_table.h"
#include "output_formats.h"
#include "parse_outcome.h"

#ifndef QUENOPT_VERSION
#define QUENOPT_VERSION "unknown"
#endif

namespace {

// Exit codes of quenopt's own failures; a failed parse exits with the library's code.
int const kExitUsage = 64;
int const kExitTable = 65;
int const kExitNoTable = 66;

char const kUsage[] =
    "Usage: quenopt --table FILE [--format sh|bash|json] [--prefix P] [--flags N] -- [ARGUMENT...]\n"
    "       quenopt --help | --version\n"
    "\n"
    "Parses a shell script's arguments against the option table FILE ('-' reads\n"
    "standard input) and prints code for the script to evaluate:\n"
    "\n"
    "    eval \"$(quenopt --table FILE -- \"$@\")\" || exit\n"
    "\n"
    "  --table FILE   one option per line: names | kind | group | attributes | description\n"
    "  --format F     sh (the default), bash or json\n"
    "  --prefix P     variables are named P_name; 'opt' by default, '' for bare names\n"
    "  --flags N      the parser's flag word; 10 (unknown options are errors) by default\n"
    "\n"
    "See quenopt(1) for the table, the output and the exit codes.\n";

struct Settings {
    bool haveTable = false;
    std::string table;
    quenopt::Format format = quenopt::Format::Sh;
    std::string prefix = "opt";
    // Unknown options are errors, also when a positional option would take them.
    int flags = quen_3_1::FlagUnknownIsError | quen_3_1::FlagNoHyphenPositional;
    std::vector<std::string> arguments;
};

int usageError(std::string const& message) {
    std::cerr << "quenopt: " << message << "\nTry 'quenopt --help'.\n";
    return kExitUsage;
}

bool parseFlags(std::string const& text, int& flags) {
    if (text.empty() || text[0] == '-' || text[0] == '+' || text[0] == ' ') {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    long value = std::strtol(text.c_str(), &end, 0);
    if (errno != 0 || *end != '\0' || value > 0x7fffffffL) {
        return false;
    }
    flags = static_cast<int>(value);
    return true;
}

// Returns -1 when the settings are complete, otherwise the exit code, with
// what standard output carries for --help and --version in `output`.
int readSettings(int argc, char** argv, Settings& settings, std::string& output) {
    int at = 1;
    for (; at < argc; ++at) {
        std::string argument = argv[at];
        if (argument == "--") {
            ++at;
            break;
        }
        if (argument == "--help") {
            output = kUsage;
            return 0;
        }
        if (argument == "--version") {
            output = std::string("quenopt ") + QUENOPT_VERSION + "\n";
            return 0;
        }
        std::string name = argument;
        std::string value;
        bool inline_value = false;
        std::string::size_type equals = argument.find('=');
        if (argument.compare(0, 2, "--") == 0 && equals != std::string::npos) {
            name = argument.substr(0, equals);
            value = argument.substr(equals + 1);
            inline_value = true;
        }
        if (name != "--table" && name != "--format" && name != "--prefix" && name != "--flags") {
            if (argument.compare(0, 1, "-") == 0) {
                return usageError("unknown option '" + argument + "'");
            }
            return usageError("unexpected argument '" + argument + "'; the script's arguments follow '--'");
        }
        if (!inline_value) {
            if (at + 1 >= argc) {
                return usageError("option '" + name + "' requires a value");
            }
            value = argv[++at];
        }
        if (name == "--table") {
            settings.haveTable = true;
            settings.table = value;
        } else if (name == "--format") {
            if (!quenopt::formatFromName(value, settings.format)) {
                return usageError("unknown format '" + value + "'; formats are sh, bash and json");
            }
        } else if (name == "--prefix") {
            if (!value.empty() && !quenopt::isShellIdentifier(value)) {
                return usageError("prefix '" + value + "' is not a shell variable name");
            }
            settings.prefix = value;
        } else if (!parseFlags(value, settings.flags)) {
            return usageError("flags '" + value + "' is not a non-negative number");
        }
    }
    if (!settings.haveTable) {
        return usageError("no option table; give --table FILE");
    }
    for (; at < argc; ++at) {
        settings.arguments.push_back(argv[at]);
    }
    return -1;
}

// Runs quenopt and returns its exit status, with what standard output is to
// carry in `output`: on every failure of its own, the exit command that stops
// the evaluating script.
int run(int argc, char** argv, std::string& output) {
    Settings settings;
    int code = readSettings(argc, argv, settings, output);
    if (code >= 0) {
        return code;
    }

    quenopt::OptionTable table;
    std::string error;
    bool read = false;
    if (settings.table == "-") {
        read = quenopt::readTable(std::cin, "<stdin>", settings.prefix, table, error);
    } else {
        std::ifstream file(settings.table, std::ios::in | std::ios::binary);
        if (!file) {
            std::cerr << "quenopt: cannot open table '" << settings.table << "': " << std::strerror(errno) << '\n';
            return kExitNoTable;
        }
        read = quenopt::readTable(file, settings.table, settings.prefix, table, error);
    }
    if (!read) {
        std::cerr << "quenopt: " << error << '\n';
        return kExitTable;
    }

    quenopt::ParseOutcome outcome;
    std::string problem;
    if (!quenopt::runParse(table, settings.flags, settings.arguments, outcome, problem)) {
        std::cerr << "quenopt: " << problem << '\n';
        return quenopt::kExitInternal;
    }
    if (outcome.code != 0) {
        if (outcome.error.empty()) {
            std::cerr << "quenopt: the arguments could not be parsed (code " << outcome.code << ")\n";
        } else {
            std::cerr << outcome.error << '\n';
        }
    } else if (outcome.help) {
        std::cerr << outcome.helpText;
    }
    std::ostringstream script;
    quenopt::writeOutcome(script, settings.format, outcome);
    output = script.str();
    return quenopt::exitStatus(outcome);
}

}  // namespace

int main(int argc, char** argv) {
    quenopt::installFailClosed();
    try {
        std::string output;
        int const code = run(argc, argv, output);
        if (code != 0 && output.empty()) {
            output = quenopt::exitCommand(code);
        }
        std::cerr.flush();
        if (!quenopt::writeOutput(output)) {
            quenopt::failClosed("cannot write to standard output");
        }
        return code;
    } catch (std::exception const& failure) {
        quenopt::failClosed(failure.what());
    } catch (...) {
        quenopt::failClosed("internal failure");
    }
}
