// quen_3_1 extras: what a host can build on the options it registered --
// shell completion scripts, "did you mean" suggestions, and option values
// taken from environment variables.
//
// Every function works on a parser made by createParser; any other or a null
// parser gives the "nothing" answer documented with each function. Texts
// handed out belong to the parser and stay valid until it is destroyed.
#ifndef QUEN_3_1_EXTRAS_H
#define QUEN_3_1_EXTRAS_H

#include "quen.h"

namespace quen_3_1 {

// Script completing `program`'s visible options in "bash", "zsh" or "fish"; null for any other shell or parser.
// The script belongs to the parser and stays valid until the parser is destroyed.
QUEN_API char const* completionScript(IParser* parser, char const* program, char const* shell);

// Writes to `out` up to `max` visible names nearest to `typed`, best first; returns the count (0 for nulls).
// Only the first 64 bytes of `typed` and of each name are compared, so the work per name is bounded.
// The names belong to the parser and stay valid until the parser is destroyed.
QUEN_API int suggestNames(IParser* parser, char const* typed, char const** out, int max);

// parseStream of PREFIX_NAME variables as --name=value; its code, 2 on a line break, 3 for a null or foreign parser.
// Nothing is handed out: `result` keeps copies of the values until it is destroyed.
QUEN_API int parseEnvironment(IParser* parser, IParseResult* result, char const* prefix);

}  // namespace quen_3_1

#endif  // QUEN_3_1_EXTRAS_H
