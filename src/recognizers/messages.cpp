#include "recognizers/messages.h"

namespace quen_3_1 {
namespace recognizer_messages {

std::string inArgument(std::string const& argument) { return " in argument: '" + argument + "'"; }

std::string ambiguousCandidates(std::string const& list) { return "Ambiguous option, possible options are: " + list; }

std::string ambiguousOption(std::string const& typed, std::string const& token, std::string const& list) {
    return "Ambiguous option '" + typed + "'" + token + ", could be: " + list;
}

// The missing blank after the name is what hosts have always matched.
std::string valueRefused(std::string_view option, std::string const& token) {
    return "Option '" + std::string(option) + "'does not requires a value" + token;
}

std::string booleanForm(std::string_view option, std::string const& token) {
    return "Option '" + std::string(option) +
           "' is boolean and should be declared in form '--option' or '--no-option'" + token;
}

std::string valueRequired(std::string_view option, std::string const& token) {
    return "Option '" + std::string(option) + "' requires a value" + token;
}

std::string nextLooksLikeOption(std::string_view option, std::string const& value) {
    return "Option '" + std::string(option) + "received value from the next argument: '" + value +
           "', but it seems to be an option. Use '-option=value' declaration form or make sure that value is not "
           "missed";
}

std::string validationProblem(std::string const& argument, std::string const& reason) {
    return "Value validation problem in argument '" + argument + "': " + reason;
}

std::string valueVetoed(std::string const& value, std::string_view option, std::string const& argument) {
    return "Value '" + value + "' is not valid for option '" + std::string(option) + "' in argument '" + argument + "'";
}

char const* numbersExhausted() { return "Sequence numbers exhausted: this process can number no more values."; }

}  // namespace recognizer_messages
}  // namespace quen_3_1
