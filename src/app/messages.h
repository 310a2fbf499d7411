// Every text that the application layer writes, in one place.
#ifndef QUEN_3_1_SRC_APP_MESSAGES_H
#define QUEN_3_1_SRC_APP_MESSAGES_H

#include <string>
#include <vector>

namespace quen_3_1::app_detail::text {

// "'a', 'b', 'c'": names and values quoted as the library quotes them.
std::string quotedList(std::vector<std::string> const& items);

std::string errorLine(std::string const& program, std::string const& message);
std::string tryHelpLine(std::string const& program);
// Empty for no names; `prefix` goes before each ("--" for options, nothing for commands).
std::string didYouMean(std::vector<std::string> const& names, char const* prefix);
std::string versionLine(std::string const& program, std::string const& version);

std::string notWhole(std::string const& option, std::string const& value, std::string const& kind);
std::string outOfRange(std::string const& option, std::string const& value, std::string const& lowest,
                       std::string const& highest);
std::string failedCheck(std::string const& option, std::string const& value, std::string const& reason);
std::string required(std::string const& option);
std::string needs(std::string const& option, std::string const& other);
std::string excludes(std::string const& option, std::string const& other);
std::string exclusive(std::vector<std::string> const& names);
std::string exclusiveRequired(std::vector<std::string> const& names);
std::string unexpectedArgument(std::string const& argument);
std::string unknownCommand(std::string const& typed);
std::string ambiguousCommand(std::string const& typed, std::vector<std::string> const& candidates);
std::string inFile(std::string const& path, std::size_t line, std::string const& message);
std::string unreadableFile(std::string const& path);
std::string fileTooLarge(std::string const& path, std::size_t bytes);
std::string inVariable(std::string const& variable, std::string const& message);
std::string notBoolean(std::string const& value);

// Mistakes in the program's declarations, reported by parse with kDeclarationExitCode.
std::string badDeclaration(std::string const& what);
std::string badName(std::string const& names);
std::string declaredTwice(std::string const& name);
std::string reservedName(std::string const& name);
std::string positionalAfterVector(std::string const& name);
std::string unknownReference(std::string const& name);
std::string emptyRange(std::string const& option);
std::string commandsAndPositionals(std::string const& name);

// Help texts.
extern char const kUsage[];
extern char const kOptionsSuffix[];
extern char const kCommandSuffix[];
extern char const kOptionsHeading[];
extern char const kArgumentsHeading[];
extern char const kCommandsHeading[];
extern char const kHelpDescription[];
extern char const kVersionDescription[];
extern char const kCompletionDescription[];

}  // namespace quen_3_1::app_detail::text

#endif  // QUEN_3_1_SRC_APP_MESSAGES_H
