// The three renderings of a parse outcome: POSIX shell assignments, bash
// arrays, and one JSON object.
#ifndef QUENOPT_OUTPUT_FORMATS_H
#define QUENOPT_OUTPUT_FORMATS_H

#include <ostream>
#include <string>

#include "parse_outcome.h"

namespace quenopt {

enum class Format { Sh, Bash, Json };

// Reads a format name ("sh", "bash" or "json"); false for any other text.
bool formatFromName(std::string const& name, Format& format);

// The exit status for `outcome`: 0, or the library's code when a shell can
// carry it (1 to 255), else quenopt's own code for an internal failure.
int exitStatus(ParseOutcome const& outcome);

// The command that ends the evaluating script with `status`.
std::string exitCommand(int status);

// Writes what standard output carries for `outcome`. For the shell formats a
// failed parse or a help request writes only the `exit` command that stops
// the evaluating script; JSON always writes the whole object.
void writeOutcome(std::ostream& out, Format format, ParseOutcome const& outcome);

}  // namespace quenopt

#endif
