#include "frontend/ustring.h"

#include <ios>

namespace ORNA_2_10 {
namespace strings {
namespace tv2 {

// The standard output and error streams, named by their symbols. Including
// <iostream> instead would give this file an initialiser that builds all the
// standard streams and the classic locale whenever the library is loaded.
extern std::ostream standardOutput __asm__("_ZSt4cout");
extern std::ostream standardError __asm__("_ZSt4cerr");

std::ostream& ucout = standardOutput;

namespace {

// Builds the standard streams on first use; the last initialiser to go
// flushes them at exit, as the one <iostream> gives would.
void ensureStandardStreams() { static std::ios_base::Init const init; }

}  // namespace

std::ostream& console() {
    ensureStandardStreams();
    return ucout;
}

std::ostream& consoleError() {
    ensureStandardStreams();
    return standardError;
}

std::string to_ustring(char const* text) { return text == nullptr ? std::string() : std::string(text); }

std::string to_utf8(std::string const& text) { return text; }

}  // namespace tv2
}  // namespace strings
}  // namespace ORNA_2_10
