#include "fuzz_support.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace quen_fuzz {

namespace {

long g_outstanding = 0;

void countingRelease(void* p) {
    --g_outstanding;
    std::free(p);
}

void* countingAllocate(std::size_t bytes) {
    ++g_outstanding;
    return std::malloc(bytes);
}

constexpr int kNoNumber = 0x7fffffff;
constexpr int kLoopLimit = 1000000;

// Numbers grow along an iteration, except under a name listed twice: every
// store after the first appends its whole batch once per listing, so a value
// split in two comes back as a, b, a, b and no order holds there.
bool inOrder(int number, int previous, bool listedTwice) {
    return listedTwice ? number > 0 && number != kNoNumber : number > previous;
}

void walkValues(quen_3_1::IParseResult* result, std::string const& name, bool listedTwice, HandedOut& texts) {
    quen_3_1::Value value = result->get(name.c_str());
    int previous = -1;
    int steps = 0;
    while (value.m_status == 0) {
        texts.keep(value.m_text);
        check(inOrder(value.m_index, previous, listedTwice), "sequence numbers grow along get/next");
        previous = value.m_index;
        check(++steps < kLoopLimit, "get/next loop ends");
        value = result->next(name.c_str());
    }
    check(value.m_status == 1 || value.m_status == 3, "a finished iteration reports 1 or 3");
    check(value.m_text == nullptr && value.m_index == kNoNumber, "not-found value has no text and no number");
}

void walkPositions(quen_3_1::IParseResult* result, std::string const& name, bool listedTwice) {
    if (!result->present(name.c_str())) {
        check(result->nextPosition() == kNoNumber, "an option absent from the range has no positions");
        return;
    }
    int previous = -1;
    int steps = 0;
    for (int position = result->nextPosition(); position != kNoNumber; position = result->nextPosition()) {
        check(inOrder(position, previous, listedTwice), "occurrence numbers grow");
        previous = position;
        check(++steps < kLoopLimit, "nextPosition loop ends");
    }
}

void walkArguments(quen_3_1::IParseResult* result, HandedOut& texts) {
    char const* text = nullptr;
    int steps = 0;
    for (int code = result->getFirstArgument(&text); code == 0; code = result->getNextArgument(&text)) {
        texts.keep(text);
        check(++steps < kLoopLimit, "argument loop ends");
    }
}

}  // namespace

void check(bool condition, char const* what) {
    if (!condition) {
        std::fprintf(stderr, "invariant violated: %s\n", what);
        std::abort();
    }
}

void installCountingHooks() {
    tarvo2::variant_t::m_mem.release = &countingRelease;
    tarvo2::variant_t::m_mem.allocate = &countingAllocate;
}

long outstandingAllocations() { return g_outstanding; }

void HandedOut::keep(char const* text) {
    if (text != nullptr) {
        m_texts.push_back(text);
    }
}

void HandedOut::verifyReadable() const {
    std::size_t total = 0;
    for (char const* text : m_texts) {
        total += std::strlen(text);
    }
    check(total < (static_cast<std::size_t>(1) << 40), "texts are readable");
}

bool isLibraryCode(int code) { return code >= 0 && code <= 4; }

void walkResult(quen_3_1::IParseResult* result, std::vector<std::string> const& names, HandedOut& texts) {
    for (std::string const& name : names) {
        bool const listedTwice = std::count(names.begin(), names.end(), name) > 1;
        walkValues(result, name, listedTwice, texts);
        walkPositions(result, name, listedTwice);
        quen_3_1::Value last = quen_3_1::getLastValue(result, name.c_str());
        texts.keep(last.m_text);
        check((last.m_status == 0) == (result->get(name.c_str()).m_status == 0), "getLastValue agrees with get");
    }
    walkArguments(result, texts);
}

void parseTextAndReadBack(quen_3_1::IParser* parser, quen_3_1::IParseResult* result, std::string const& text,
                          std::vector<std::string> const& names, HandedOut& texts) {
    int const code = parser->parseStream(text.c_str(), result);
    check(isLibraryCode(code) && code != 1, "parseStream returns a library code");
    texts.keep(parser->getErrorDesc());
    walkResult(result, names, texts);
    texts.keep(parser->getDescription(false));
    texts.keep(parser->getDescription(true));
    texts.verifyReadable();
}

std::vector<std::string> splitAt(std::string const& text, char separator) {
    std::vector<std::string> pieces(1);
    for (char c : text) {
        if (c == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

std::vector<std::string> splitArguments(std::uint8_t const* data, std::size_t size) {
    std::vector<std::string> args(1);
    for (std::size_t i = 0; i < size; ++i) {
        char const c = static_cast<char>(data[i]);
        if (c == '\0' || c == '\n') {
            args.emplace_back();
        } else {
            args.back() += c;
        }
    }
    return args;
}

}  // namespace quen_fuzz
