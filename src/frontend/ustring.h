#ifndef QUEN_3_1_FRONTEND_USTRING_H
#define QUEN_3_1_FRONTEND_USTRING_H

#include <ostream>
#include <string>

// Text conversions and the console streams used by the library. Texts are
// taken as bytes: plain ASCII, and any other encoding, passes unchanged.
namespace ORNA_2_10 {
namespace strings {
namespace tv2 {

// The console stream: the process's standard output. Write to it only
// through console(), which makes sure the standard streams exist.
extern std::ostream& ucout;

// The process's standard output and standard error. The standard streams are
// built on the first call, not when the library is loaded: a host that never
// writes through the library does not pay for them.
std::ostream& console();
std::ostream& consoleError();

// The text as a string; a null text gives the empty string.
std::string to_ustring(char const* text);

// The text as UTF-8 for the console.
std::string to_utf8(std::string const& text);

}  // namespace tv2
}  // namespace strings
}  // namespace ORNA_2_10

#endif
