#ifndef QUEN_TESTS_SUPPORT_CAPTURE_H
#define QUEN_TESTS_SUPPORT_CAPTURE_H

#include <string>

namespace quen_test {

// Redirects a file descriptor (1 or 2) into a temporary file for the lifetime
// of the object, below the C and C++ stream layers, so that everything the
// library writes is seen exactly as a terminal would receive it.
class FdCapture {
public:
    explicit FdCapture(int fd);
    FdCapture(FdCapture const&) = delete;
    FdCapture& operator=(FdCapture const&) = delete;
    ~FdCapture();

    // Restores the descriptor and returns what was written; later calls give "".
    std::string finish();

private:
    int m_fd;
    int m_saved;
    int m_file;
};

// What a piece of code wrote to standard output and to standard error.
struct Outputs {
    std::string out;
    std::string err;
};

template <class Body>
Outputs outputsOf(Body body) {
    FdCapture out(1);
    FdCapture err(2);
    body();
    Outputs written;
    written.out = out.finish();
    written.err = err.finish();
    return written;
}

}  // namespace quen_test

#endif
