#ifndef QUEN_3_1_OPTIONS_MESSAGES_H
#define QUEN_3_1_OPTIONS_MESSAGES_H

#include <string>
#include <string_view>

// The fixed texts of option registration, value conversion and validation, each written once here.
namespace quen_3_1 {
namespace option_messages {

// The display names of the kinds, as messages and help show them.
char const* typeNameUndefined();
char const* typeNameInteger();
char const* typeNameUnsigned();
char const* typeNameInteger64();
char const* typeNameUnsigned64();
char const* typeNameDouble();
char const* typeNameText();

std::string cannotParse(std::string_view option, std::string const& text, std::string const& typeName);
std::string notAllowed(std::string_view option, std::string const& text, std::string const& allowedList);
std::string ambiguousValue(std::string_view option, std::string const& allowedList);

// What a registration given a null text throws, worded as the standard library words it.
char const* nullText();

}  // namespace option_messages
}  // namespace quen_3_1

#endif
