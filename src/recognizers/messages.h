#ifndef QUEN_3_1_RECOGNIZERS_MESSAGES_H
#define QUEN_3_1_RECOGNIZERS_MESSAGES_H

#include <string>
#include <string_view>

// The fixed texts of recognition, each written once here. `token` is the
// " in argument: '...'" part that several messages end with.
namespace quen_3_1 {
namespace recognizer_messages {

std::string inArgument(std::string const& argument);
std::string ambiguousCandidates(std::string const& list);
std::string ambiguousOption(std::string const& typed, std::string const& token, std::string const& list);
std::string valueRefused(std::string_view option, std::string const& token);
std::string booleanForm(std::string_view option, std::string const& token);
std::string valueRequired(std::string_view option, std::string const& token);
std::string nextLooksLikeOption(std::string_view option, std::string const& value);
std::string validationProblem(std::string const& argument, std::string const& reason);
std::string valueVetoed(std::string const& value, std::string_view option, std::string const& argument);
char const* numbersExhausted();

}  // namespace recognizer_messages
}  // namespace quen_3_1

#endif
