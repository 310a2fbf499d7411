#include "output_formats.h"

#include <string>

#include "escaping.h"
#include "fail_closed.h"

namespace quenopt {

namespace {

void writeShell(std::ostream& out, bool arrays, ParseOutcome const& outcome) {
    if (outcome.code != 0) {
        out << exitCommand(exitStatus(outcome));
        return;
    }
    if (outcome.help) {
        out << "exit 0\n";
        return;
    }
    for (OptionOutcome const& option : outcome.options) {
        std::string const& variable = option.option->variable;
        if (option.values.empty()) {
            // Clears a value that the script's environment may have brought in.
            out << "unset " << variable << '\n';
        } else if (arrays) {
            out << variable << "=(";
            char const* separator = "";
            for (OptionValue const& value : option.values) {
                out << separator << shellQuote(value.text);
                separator = " ";
            }
            out << ")\n";
        } else {
            std::string joined;
            for (OptionValue const& value : option.values) {
                joined += (&value == &option.values.front() ? "" : "\n") + value.text;
            }
            out << variable << '=' << shellQuote(joined) << '\n';
        }
        out << variable << "_count=" << option.count << '\n';
    }
    out << "set --";
    for (std::string const& argument : outcome.arguments) {
        out << ' ' << shellQuote(argument);
    }
    out << '\n';
}

void writeJson(std::ostream& out, ParseOutcome const& outcome) {
    out << "{\n  \"options\": {";
    char const* separator = "\n";
    for (OptionOutcome const& option : outcome.options) {
        out << separator << "    " << jsonString(std::string(option.option->names.front()))
            << ": {\"count\": " << option.count << ", \"default\": " << (option.fromDefault ? "true" : "false")
            << ", \"occurrences\": [";
        char const* inner = "";
        for (int occurrence : option.occurrences) {
            out << inner << occurrence;
            inner = ", ";
        }
        out << "], \"values\": [";
        inner = "";
        for (OptionValue const& value : option.values) {
            out << inner << "{\"value\": " << jsonString(value.text) << ", \"seq\": " << value.sequence << '}';
            inner = ", ";
        }
        out << "]}";
        separator = ",\n";
    }
    out << (outcome.options.empty() ? "},\n" : "\n  },\n");
    out << "  \"arguments\": [";
    separator = "";
    for (std::string const& argument : outcome.arguments) {
        out << separator << jsonString(argument);
        separator = ", ";
    }
    out << "],\n  \"help\": " << (outcome.help ? "true" : "false") << ",\n  \"error\": ";
    if (outcome.code == 0) {
        out << "null";
    } else {
        out << "{\"code\": " << outcome.code << ", \"message\": " << jsonString(outcome.error) << '}';
    }
    out << "\n}\n";
}

}  // namespace

int exitStatus(ParseOutcome const& outcome) {
    if (outcome.code == 0) {
        return 0;
    }
    return outcome.code > 0 && outcome.code <= 255 ? outcome.code : kExitInternal;
}

std::string exitCommand(int status) { return "exit " + std::to_string(status) + "\n"; }

bool formatFromName(std::string const& name, Format& format) {
    if (name == "sh") {
        format = Format::Sh;
    } else if (name == "bash") {
        format = Format::Bash;
    } else if (name == "json") {
        format = Format::Json;
    } else {
        return false;
    }
    return true;
}

void writeOutcome(std::ostream& out, Format format, ParseOutcome const& outcome) {
    switch (format) {
        case Format::Sh:
            writeShell(out, false, outcome);
            break;
        case Format::Bash:
            writeShell(out, true, outcome);
            break;
        case Format::Json:
            writeJson(out, outcome);
            break;
    }
}

}  // namespace quenopt
