#ifndef QUEN_3_1_FRONTEND_USTRING_H
#define QUEN_3_1_FRONTEND_USTRING_H

#include <ostream>
#include <string>

// Text conversions and the console stream used by the front end. Texts are
// taken as bytes: plain ASCII, and any other encoding, passes unchanged.
namespace ORNA_2_10 {
namespace strings {
namespace tv2 {

// The console stream: the process's standard output.
extern std::ostream& ucout;

// The text as a string; a null text gives the empty string.
std::string to_ustring(char const* text);

// The text as UTF-8 for the console.
std::string to_utf8(std::string const& text);

}  // namespace tv2
}  // namespace strings
}  // namespace ORNA_2_10

#endif
