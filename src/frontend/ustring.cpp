#include "frontend/ustring.h"

#include <iostream>

namespace ORNA_2_10 {
namespace strings {
namespace tv2 {

std::ostream& ucout = std::cout;

std::string to_ustring(char const* text) { return text == nullptr ? std::string() : std::string(text); }

std::string to_utf8(std::string const& text) { return text; }

}  // namespace tv2
}  // namespace strings
}  // namespace ORNA_2_10
