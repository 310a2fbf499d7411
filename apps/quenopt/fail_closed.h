// Whatever stops quenopt, what it leaves on standard output stops the script
// that evaluates it: a script is built whole in memory and written in one go
// at the end, and every failure before that -- an allocation that fails, an
// exception, a crash, a signal that ends the process -- writes the line
// "exit 70" instead, without allocating, and ends the process with 70.
//
// What cannot be helped: SIGKILL, a process that cannot be started at all
// (the one-step form then evaluates an empty text; the two-step form sees the
// shell's status), and a write that fails part-way (the reader has gone away
// or the disk is full): the exit status is then 70, so the two-step form stops.
#ifndef QUENOPT_FAIL_CLOSED_H
#define QUENOPT_FAIL_CLOSED_H

#include <string>

namespace quenopt {

int const kExitInternal = 70;

// The line that stops a script after an internal failure.
extern char const kFailureLine[];

// Installs the handlers of fatal signals and of allocation failure.
void installFailClosed();

// The descriptor that carries the script; the parse moves standard output
// aside while the library may trace, and says where it went.
void setScriptDescriptor(int descriptor);

// Writes "quenopt: `message`" to standard error and kFailureLine to the
// script's descriptor, and ends the process with kExitInternal. Allocates nothing.
[[noreturn]] void failClosed(char const* message);

// Writes `output` whole to the script's descriptor, with fatal signals held
// off so that no failure line lands in its middle. False when it could not
// all be written.
bool writeOutput(std::string const& output);

}  // namespace quenopt

#endif
