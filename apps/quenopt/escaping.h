// Quoting of texts for the two kinds of output: shell words and JSON strings.
#ifndef QUENOPT_ESCAPING_H
#define QUENOPT_ESCAPING_H

#include <string>

namespace quenopt {

// One single-quoted shell word that yields `text` byte for byte in any POSIX
// shell; a single quote inside becomes '\''.
std::string shellQuote(std::string const& text);

// A JSON string literal. Well-formed UTF-8 passes through; '"', '\\' and the
// control characters are escaped; every byte that is not part of well-formed
// UTF-8 becomes \u00XX, the code point of the same number.
std::string jsonString(std::string const& text);

}  // namespace quenopt

#endif
