// Shared pieces of the fuzz targets: invariant checks that abort on failure,
// memory hooks that count the variant's allocations, and a walk over every
// query of a result.
#ifndef QUEN_FUZZ_SUPPORT_H
#define QUEN_FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "quen_3_1/quen.h"

// The entry point every target defines and libFuzzer or the replay driver calls.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace quen_fuzz {

// Aborts with a message when an invariant does not hold.
void check(bool condition, char const* what);

// Installs hooks that count the variant's allocations and releases.
void installCountingHooks();
// Allocations not released yet.
long outstandingAllocations();

// Every text a parser or result handed out; all must stay readable until the
// owner is destroyed.
class HandedOut {
public:
    void keep(char const* text);
    // Reads every kept text once more (sanitizers catch a dangling one).
    void verifyReadable() const;
    void clear() { m_texts.clear(); }

private:
    std::vector<char const*> m_texts;
};

// The codes a parse can return to the host.
bool isLibraryCode(int code);

// Runs present/get/next/nextPosition/getLastValue for every name and the
// plain-argument iteration; checks that loops end and numbers grow.
void walkResult(quen_3_1::IParseResult* result, std::vector<std::string> const& names, HandedOut& texts);

// Parses `text` as an option text into `result`, checks the code, then walks
// the result over `names` and reads the error and both help texts back.
void parseTextAndReadBack(quen_3_1::IParser* parser, quen_3_1::IParseResult* result, std::string const& text,
                          std::vector<std::string> const& names, HandedOut& texts);

// Splits `text` at every `separator`: n separators give n + 1 pieces, empty ones included.
std::vector<std::string> splitAt(std::string const& text, char separator);

// Splits fuzz bytes into arguments at NUL and newline bytes.
std::vector<std::string> splitArguments(std::uint8_t const* data, std::size_t size);

}  // namespace quen_fuzz

#endif
