#include "support/capture.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace quen_test {

namespace {

void flushAll() {
    std::cout.flush();
    std::cerr.flush();
    std::fflush(stdout);
    std::fflush(stderr);
}

}  // namespace

FdCapture::FdCapture(int fd) : m_fd(fd), m_saved(-1), m_file(-1) {
    char path[] = "/tmp/quen-capture-XXXXXX";
    m_file = mkstemp(path);
    if (m_file < 0) {
        throw std::runtime_error("mkstemp failed");
    }
    unlink(path);
    flushAll();
    m_saved = dup(fd);
    dup2(m_file, fd);
}

FdCapture::~FdCapture() {
    finish();
    if (m_file >= 0) {
        close(m_file);
    }
}

std::string FdCapture::finish() {
    if (m_saved < 0) {
        return std::string();
    }
    flushAll();
    dup2(m_saved, m_fd);
    close(m_saved);
    m_saved = -1;
    std::string text;
    char buffer[4096];
    lseek(m_file, 0, SEEK_SET);
    for (;;) {
        ssize_t const n = read(m_file, buffer, sizeof buffer);
        if (n <= 0) {
            break;
        }
        text.append(buffer, static_cast<std::size_t>(n));
    }
    return text;
}

}  // namespace quen_test
