// The library's fast paths against the straightforward paths they stand for:
// any difference aborts.
//
// Input: lines. "o<kind><names>" declares an option (kind '0' boolean, '6'
// integer, 'c' text, 'h' no value; names comma-separated), "s<n><name>"
// adds a synonym to the n-th declared option, "p<n>" makes it positional;
// any other line is a typed name, matched and recognized both ways, and a
// value text, converted to every kind both ways. The whole input is also
// split into option-text arguments both ways.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "frontend/option_text_lines.h"
#include "frontend/trace.h"
#include "fuzz_support.h"
#include "options/name_index.h"
#include "options/registered_option_storage.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/argument_list.h"
#include "recognizers/decomposed_name.h"
#include "support/literal_name_matching.h"
#include "support/recognizer_probe.h"
#include "support/straightforward_paths.h"
#include "values/classic_extraction.h"

namespace {

using quen_3_1::AbbreviationParser;
using quen_3_1::DecomposedName;
using quen_3_1::RegisteredOptionStorage;

constexpr std::size_t kNoOption = static_cast<std::size_t>(-1);

std::vector<std::string> linesOf(std::uint8_t const* data, std::size_t size) {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += static_cast<char>(data[i]);
        }
    }
    return lines;
}

quen_3_1::kel_variant_type_t kindOf(char c) {
    switch (c) {
        case '0':
            return tarvo2::vt_bool;
        case '6':
            return tarvo2::vt_int;
        case 'h':
            return tarvo2::vt_empty;
        default:
            return tarvo2::vt_str;
    }
}

// The choice of the best candidate both ways, and what the recognizer makes of it.
void compareMatching(RegisteredOptionStorage& storage, std::string const& typed) {
    quen_test::LiteralNameMatching scan;
    std::vector<DecomposedName> names;
    scan.makeOptionNamesList(storage, names);
    std::vector<quen_test::NameMatch> matches;
    scan.makeNameMatch(matches, DecomposedName(typed), names);
    DecomposedName best;
    std::string scanMessage;
    int const scanCode = scan.findBest(matches, best, scanMessage);

    quen_test::IndexedNameMatching indexed;
    std::size_t candidate = kNoOption;
    std::string indexedMessage;
    int const indexedCode = indexed.findBestIndexed(storage.names(), typed, candidate, indexedMessage);
    quen_fuzz::check(indexedCode == scanCode, "indexed best match gives the scan's code");
    quen_fuzz::check(indexedMessage == scanMessage, "indexed best match gives the scan's message");
    quen_fuzz::check(quen_test::sameMatches(indexed.bestMatches(), scan.bestMatches()),
                     "same best matches in the same order");
    if (scanCode != 0) {
        return;
    }
    std::string const name(storage.names().candidate(candidate).text);
    quen_fuzz::check(name == best.getName(), "same best name");
    unsigned long fast = 1;
    unsigned long slow = 2;
    quen_fuzz::check(
        quen_test::isAdded(storage, name, fast) == quen_test::scanForOption(storage, {name}, slow) && fast == slow,
        "indexed lookup finds the scan's option");
    if (typed.find('=') != std::string::npos) {
        return;
    }
    quen_3_1::ArgumentList args(std::vector<std::string>{"--" + typed + "=v"});
    std::string message;
    quen_test::RecognizerProbe<AbbreviationParser> recognizer(nullptr, nullptr, 0);
    quen_fuzz::check(recognizer.recognize(args, storage, message) == 0 && recognizer.optionIndex() == slow,
                     "the recognizer takes the scan's option");
}

void compareLookup(RegisteredOptionStorage& storage, std::string const& name) {
    unsigned long fast = 1;
    unsigned long slow = 2;
    int const fastCode = storage.findOption({name, "no-" + name}, fast);
    int const slowCode = quen_test::scanForOption(storage, {name, "no-" + name}, slow);
    quen_fuzz::check(fastCode == slowCode && (fastCode != 0 || fast == slow), "indexed lookup equals the scan");
}

void compareFirstPositional(RegisteredOptionStorage const& storage) {
    std::size_t first = kNoOption;
    for (std::size_t i = 0; i < storage.size() && first == kNoOption; ++i) {
        if (storage.at(i).isPositional()) {
            first = i;
        }
    }
    quen_fuzz::check(storage.firstPositional() == first, "kept first positional option equals the scan");
}

template <class T>
bool sameValue(T a, T b) {
    return a == b;
}

template <>
bool sameValue<double>(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

template <class T>
void compareExtraction(char const* text, char const* what) {
    T fast{};
    T slow{};
    bool const fastOk = quen_3_1::extractClassic(text, fast);
    bool const slowOk = quen_test::extractByStream(text, slow);
    quen_fuzz::check(fastOk == slowOk && (!slowOk || sameValue(fast, slow)), what);
}

// The fast extraction decides exactly as a fresh stream, for every kind.
void compareConversions(std::string const& line) {
    char const* const text = line.c_str();
    compareExtraction<bool>(text, "boolean extraction equals the stream");
    compareExtraction<int>(text, "integer extraction equals the stream");
    compareExtraction<unsigned int>(text, "unsigned extraction equals the stream");
    compareExtraction<long long>(text, "64-bit extraction equals the stream");
    compareExtraction<double>(text, "double extraction equals the stream");
    for (bool hex : {false, true}) {
        unsigned long long fast = 0;
        unsigned long long slow = 0;
        bool const fastOk = quen_3_1::extractClassic(text, fast, hex);
        bool const slowOk = quen_test::extractByStream(text, slow, hex);
        quen_fuzz::check(fastOk == slowOk && (!slowOk || fast == slow), "unsigned 64-bit extraction equals the stream");
    }
}

// The whole input as an option text (up to a NUL, as a C string ends): the
// line splitter finds the arguments reading a string stream finds.
void compareOptionText(std::uint8_t const* data, std::size_t size) {
    auto const* const text = reinterpret_cast<char const*>(data);
    std::string const whole = size == 0 ? std::string() : std::string(text, strnlen(text, size));
    quen_fuzz::check(quen_test::argumentsOfText(whole) == quen_test::argumentsOfTextByStream(whole),
                     "option text lines equal the stream's");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    quen_3_1::internal::quenLogEnabled = false;
    RegisteredOptionStorage storage;
    std::vector<quen_3_1::IOption*> declared;
    for (std::string const& line : linesOf(data, size)) {
        char const op = line.empty() ? ' ' : line[0];
        if (op == 'o' && line.size() >= 2) {
            std::size_t const before = storage.size();
            quen_3_1::IOption* const option = storage.option(line.c_str() + 2, "d", kindOf(line[1]), "g");
            if (storage.size() > before) {
                declared.push_back(option);
            }
        } else if ((op == 's' || op == 'p') && line.size() >= 2 && !declared.empty()) {
            quen_3_1::IOption* const option = declared[static_cast<unsigned char>(line[1]) % declared.size()];
            if (op == 's') {
                option->synonym(line.c_str() + 2);
            } else {
                option->positional();
            }
        } else {
            compareMatching(storage, line);
            compareLookup(storage, line);
            compareConversions(line);
        }
    }
    compareFirstPositional(storage);
    compareOptionText(data, size);
    return 0;
}
