// Value texts read whole: a number is the entire text or it is refused, so
// "12x", "1.5" for an integer and "" never pass as a number.
#ifndef QUEN_3_1_SRC_APP_WHOLE_VALUES_H
#define QUEN_3_1_SRC_APP_WHOLE_VALUES_H

#include <string>
#include <string_view>

namespace quen_3_1::app_detail {

// True and `out` set when `text` is exactly one value of the type.
bool readWhole(std::string_view text, bool& out);
bool readWhole(std::string_view text, int& out);
bool readWhole(std::string_view text, unsigned& out);
bool readWhole(std::string_view text, long long& out);
// Also the library's hexadecimal forms: 0x1F, 1Fh.
bool readWhole(std::string_view text, unsigned long long& out);
bool readWhole(std::string_view text, double& out);

// What a value of the type must look like, for messages.
std::string wholeKind(bool const& /*tag*/);
std::string wholeKind(int const& /*tag*/);
std::string wholeKind(unsigned const& /*tag*/);
std::string wholeKind(long long const& /*tag*/);
std::string wholeKind(unsigned long long const& /*tag*/);
std::string wholeKind(double const& /*tag*/);

// The value as a text, for messages.
std::string valueText(bool value);
std::string valueText(int value);
std::string valueText(unsigned value);
std::string valueText(long long value);
std::string valueText(unsigned long long value);
std::string valueText(double value);
std::string valueText(std::string const& value);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_WHOLE_VALUES_H
