#include "app/messages.h"

namespace quen_3_1::app_detail::text {

std::string quotedList(std::vector<std::string> const& items) {
    std::string list;
    for (std::string const& item : items) {
        list += (list.empty() ? "'" : ", '") + item + "'";
    }
    return list;
}

std::string errorLine(std::string const& program, std::string const& message) {
    return program + ": error: " + message + "\n";
}

std::string tryHelpLine(std::string const& program) { return "Try '" + program + " --help' for more information.\n"; }

std::string didYouMean(std::vector<std::string> const& names, char const* prefix) {
    if (names.empty()) {
        return {};
    }
    std::string line = "Did you mean ";
    for (std::size_t i = 0; i < names.size(); ++i) {
        line += (i == 0 ? "" : (i + 1 == names.size() ? " or " : ", ")) + ("'" + (prefix + names[i]) + "'");
    }
    return line + "?\n";
}

std::string versionLine(std::string const& program, std::string const& version) {
    return program + " " + version + "\n";
}

std::string notWhole(std::string const& option, std::string const& value, std::string const& kind) {
    return "Option '" + option + "' does not take '" + value + "': " + kind + " is required";
}

std::string outOfRange(std::string const& option, std::string const& value, std::string const& lowest,
                       std::string const& highest) {
    return "Option '" + option + "' does not take '" + value + "': the value must be from " + lowest + " to " + highest;
}

std::string failedCheck(std::string const& option, std::string const& value, std::string const& reason) {
    return "Option '" + option + "' does not take '" + value + "': " + reason;
}

std::string required(std::string const& option) { return "Option '" + option + "' is required"; }

std::string needs(std::string const& option, std::string const& other) {
    return "Option '" + option + "' needs option '" + other + "'";
}

std::string excludes(std::string const& option, std::string const& other) {
    return "Option '" + option + "' can not be given with option '" + other + "'";
}

std::string exclusive(std::vector<std::string> const& names) {
    return "Only one of the options " + quotedList(names) + " may be given";
}

std::string exclusiveRequired(std::vector<std::string> const& names) {
    return "One of the options " + quotedList(names) + " is required";
}

std::string unexpectedArgument(std::string const& argument) { return "Unexpected argument '" + argument + "'"; }

std::string unknownCommand(std::string const& typed) { return "Unknown command '" + typed + "'"; }

std::string ambiguousCommand(std::string const& typed, std::vector<std::string> const& candidates) {
    return "Ambiguous command '" + typed + "', could be: " + quotedList(candidates);
}

std::string inFile(std::string const& path, std::size_t line, std::string const& message) {
    return "Options file '" + path + "', line " + std::to_string(line) + ": " + message;
}

std::string unreadableFile(std::string const& path) { return "Can not read options file '" + path + "'"; }

std::string fileTooLarge(std::string const& path, std::size_t bytes) {
    return "Options file '" + path + "' holds more than " + std::to_string(bytes >> 20U) + " MiB";
}

std::string inVariable(std::string const& variable, std::string const& message) {
    return "Environment variable '" + variable + "': " + message;
}

std::string notBoolean(std::string const& value) {
    return "'" + value + "' is not a boolean (1, 0, true, false, yes, no, on, off)";
}

std::string badDeclaration(std::string const& what) { return "bad declaration: " + what; }

std::string badName(std::string const& names) {
    return "the name list '" + names +
           "' is malformed (up to three comma-separated names, none empty, none beginning with '-' or holding '=' "
           "or a blank, a third one of at most two characters)";
}

std::string declaredTwice(std::string const& name) { return "the name '" + name + "' is declared twice"; }

std::string reservedName(std::string const& name) {
    return "the name '" + name + "' is reserved for the plain arguments";
}

std::string positionalAfterVector(std::string const& name) {
    return "the positional '" + name + "' follows a positional that takes all the remaining arguments";
}

std::string unknownReference(std::string const& name) { return "no option is named '" + name + "'"; }

std::string emptyRange(std::string const& option) {
    return "the range of option '" + option + "' has its lowest end above its highest";
}

std::string commandsAndPositionals(std::string const& name) {
    return "'" + name + "' has both commands and positionals; the first plain argument can be only one of them";
}

char const kUsage[] = "Usage: ";
char const kOptionsSuffix[] = " [options]";
char const kCommandSuffix[] = " <command> [<args>]";
char const kOptionsHeading[] = "Options:";
char const kArgumentsHeading[] = "Arguments:";
char const kCommandsHeading[] = "Commands:";
char const kHelpDescription[] = "Print this help and exit.";
char const kVersionDescription[] = "Print the version and exit.";
char const kCompletionDescription[] = "Print the completion script for this shell and exit.";

}  // namespace quen_3_1::app_detail::text
