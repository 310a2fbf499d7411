#include "options/messages.h"

namespace quen_3_1 {
namespace option_messages {

char const* typeNameUndefined() { return "undefined"; }
char const* typeNameInteger() { return "integer"; }
char const* typeNameUnsigned() { return "unsigned integer"; }
char const* typeNameInteger64() { return "64 bit integer"; }
char const* typeNameUnsigned64() { return "unsigned 64 bit or hex"; }
char const* typeNameDouble() { return "double"; }
char const* typeNameText() { return "string"; }

std::string cannotParse(std::string_view option, std::string const& text, std::string const& typeName) {
    return "Option '" + std::string(option) + "' can not parse '" + text + "' value, requires a type '" + typeName +
           "' here.";
}

std::string notAllowed(std::string_view option, std::string const& text, std::string const& allowedList) {
    return "Option '" + std::string(option) + "' does not allow value '" + text +
           "'. Possible values follows: " + allowedList;
}

std::string ambiguousValue(std::string_view option, std::string const& allowedList) {
    return "Ambiguous value for option '" + std::string(option) + "'. Possible values follows: " + allowedList;
}

char const* nullText() { return "basic_string: construction from null is not valid"; }

}  // namespace option_messages
}  // namespace quen_3_1
