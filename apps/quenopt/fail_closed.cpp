#include "fail_closed.h"

#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <new>

namespace quenopt {

char const kFailureLine[] = "exit 70\n";

namespace {

char const kPrefix[] = "quenopt: ";
char const kSignalMessage[] = "internal failure: stopped by a signal";
char const kMemoryMessage[] = "internal failure: out of memory";

// Crashes, and the signals that end a process unless handled; a signal of
// the second kind that is ignored (as in a background job) stays ignored.
// SIGPIPE is left alone: when the reader has gone, no one is left to stop.
int const kCrashSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGSYS, SIGTRAP};
int const kEndingSignals[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT, SIGXCPU, SIGXFSZ, SIGALRM, SIGUSR1, SIGUSR2};

volatile sig_atomic_t g_descriptor = 1;
// Set once the output has been written: a later failure only sets the status.
volatile sig_atomic_t g_written = 0;

// A crash from a stack overflow needs a stack of its own to run the handler.
alignas(16) char g_signalStack[1 << 16];

// Writes all of `size` bytes, waiting while a non-blocking descriptor is full.
bool writeAll(int descriptor, char const* data, std::size_t size) {
    while (size > 0) {
        ssize_t const written = write(descriptor, data, size);
        if (written > 0) {
            data += written;
            size -= static_cast<std::size_t>(written);
        } else if (written < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            pollfd wait{descriptor, POLLOUT, 0};
            poll(&wait, 1, -1);
        } else if (written < 0 && errno != EINTR) {
            return false;
        }
    }
    return true;
}

void writeMessage(char const* message) {
    writeAll(2, kPrefix, sizeof kPrefix - 1);
    writeAll(2, message, std::strlen(message));
    writeAll(2, "\n", 1);
}

[[noreturn]] void stop(char const* message) {
    writeMessage(message);
    if (g_written == 0) {
        writeAll(g_descriptor, kFailureLine, sizeof kFailureLine - 1);
    }
    _exit(kExitInternal);
}

extern "C" void onFatalSignal(int /*signal*/) { stop(kSignalMessage); }

void onAllocationFailure() { stop(kMemoryMessage); }

sigset_t fatalSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (int signal : kCrashSignals) {
        sigaddset(&set, signal);
    }
    for (int signal : kEndingSignals) {
        sigaddset(&set, signal);
    }
    return set;
}

}  // namespace

void installFailClosed() {
    stack_t stack{};
    stack.ss_sp = g_signalStack;
    stack.ss_size = sizeof g_signalStack;
    sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_handler = onFatalSignal;
    action.sa_flags = SA_ONSTACK;
    action.sa_mask = fatalSignals();
    for (int signal : kCrashSignals) {
        sigaction(signal, &action, nullptr);
    }
    for (int signal : kEndingSignals) {
        struct sigaction current {};
        if (sigaction(signal, nullptr, &current) == 0 && current.sa_handler != SIG_IGN) {
            sigaction(signal, &action, nullptr);
        }
    }
    std::set_new_handler(onAllocationFailure);
}

void setScriptDescriptor(int descriptor) { g_descriptor = descriptor; }

void failClosed(char const* message) { stop(message); }

bool writeOutput(std::string const& output) {
    // Crashes cannot come from the write itself; the others wait for its end.
    sigset_t const held = fatalSignals();
    sigset_t previous;
    sigprocmask(SIG_BLOCK, &held, &previous);
    bool const whole = writeAll(g_descriptor, output.data(), output.size());
    g_written = 1;
    sigprocmask(SIG_SETMASK, &previous, nullptr);
    return whole;
}

}  // namespace quenopt
