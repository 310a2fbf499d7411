// Every fast path of the library against the straightforward path it stands
// for, over a large generated corpus: the same answers, messages and orders.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "frontend/option_text_lines.h"
#include "frontend/trace.h"
#include "options/name_index.h"
#include "options/option_description.h"
#include "options/registered_option_storage.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/argument_list.h"
#include "recognizers/decomposed_name.h"
#include "support/capture.h"
#include "support/literal_name_matching.h"
#include "support/recognizer_probe.h"
#include "support/straightforward_paths.h"
#include "values/classic_extraction.h"
#include "values/classic_rendering.h"
#include "values/garbage.h"

using quen_3_1::AbbreviationParser;
using quen_3_1::ArgumentList;
using quen_3_1::DecomposedName;
using quen_3_1::IOption;
using quen_3_1::RegisteredOptionStorage;

namespace {

class FastPath : public ::testing::Test {
protected:
    void SetUp() override { quen_3_1::internal::quenLogEnabled = false; }
    void TearDown() override { quen_3_1::internal::quenLogEnabled = false; }
};

constexpr std::size_t kNoOption = static_cast<std::size_t>(-1);

// Few short parts, so that equal parts, prefixes, "no-" forms, empty parts
// and duplicate names are frequent.
char const* const kParts[] = {"", "a", "ab", "abc", "b", "ba", "no", "n", "x", "xy", "log", "lo", "l", "file", "f"};

class Corpus {
public:
    explicit Corpus(std::uint32_t seed) : m_random(seed) {}

    std::size_t below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random); }

    std::string name() {
        std::string text = below(6) == 0 ? "no-" : "";
        std::size_t const parts = 1 + below(3);
        for (std::size_t i = 0; i < parts; ++i) {
            text += (i == 0 ? "" : "-");
            text += kParts[below(sizeof kParts / sizeof kParts[0])];
        }
        return text;
    }

    // A typed name: any name, or a registered one with its parts shortened.
    std::string typed(std::vector<std::string> const& known) {
        if (known.empty() || below(3) == 0) {
            return name();
        }
        DecomposedName decomposed(known[below(known.size())]);
        for (std::string& part : decomposed.parts) {
            part.resize(below(part.size() + 1));
        }
        return below(4) == 0 ? known[below(known.size())] : decomposed.getName();
    }

    // Options of every kind, some refused, synonyms added to earlier options
    // at any time (duplicates included) and some options made positional.
    std::vector<std::string> populate(RegisteredOptionStorage& storage) {
        quen_test::FdCapture refusals(2);  // a clashing name is reported on standard error
        std::vector<std::string> known;
        std::vector<IOption*> stored;
        tarvo2::kel_variant_type_t const kinds[] = {tarvo2::vt_bool, tarvo2::vt_bool,  tarvo2::vt_int,
                                                    tarvo2::vt_str,  tarvo2::vt_empty, tarvo2::vt_double};
        std::size_t const count = 1 + below(30);
        for (std::size_t i = 0; i < count; ++i) {
            std::string list = name();
            std::size_t const more = below(3);
            for (std::size_t j = 0; j < more; ++j) {
                list += "," + name();
            }
            std::size_t const before = storage.size();
            IOption* const option = storage.option(list.c_str(), "d", kinds[below(6)], "g");
            if (storage.size() > before) {
                stored.push_back(option);
                for (std::string_view const n : storage.at(before).names()) {
                    known.emplace_back(n);
                }
            }
            if (!stored.empty() && below(4) == 0) {
                std::string const synonym = below(3) == 0 && !known.empty() ? known[below(known.size())] : name();
                stored[below(stored.size())]->synonym(synonym.c_str());
                known.push_back(synonym);
            }
            if (!stored.empty() && below(10) == 0) {
                stored[below(stored.size())]->positional();
            }
        }
        return known;
    }

private:
    std::mt19937 m_random;
};

struct Outcome {
    int code = 0;
    std::string message;
    std::vector<quen_test::NameMatch> matches;
    std::string best;
};

// The straightforward path: the whole candidate list, every candidate scored.
Outcome byScan(RegisteredOptionStorage& storage, std::string const& typed) {
    quen_test::LiteralNameMatching parser;
    std::vector<DecomposedName> names;
    parser.makeOptionNamesList(storage, names);
    std::vector<quen_test::NameMatch> matches;
    parser.makeNameMatch(matches, DecomposedName(typed), names);
    DecomposedName best;
    Outcome outcome;
    outcome.code = parser.findBest(matches, best, outcome.message);
    outcome.matches = parser.bestMatches();
    outcome.best = outcome.code == 0 ? best.getName() : "";
    return outcome;
}

Outcome byIndex(quen_test::IndexedNameMatching& parser, RegisteredOptionStorage& storage, std::string const& typed) {
    Outcome outcome;
    std::size_t best = kNoOption;
    outcome.code = parser.findBestIndexed(storage.names(), typed, best, outcome.message);
    outcome.matches = parser.bestMatches();
    outcome.best = outcome.code == 0 ? std::string(storage.names().candidate(best).text) : "";
    return outcome;
}

void expectSame(Outcome const& fast, Outcome const& reference, std::string const& typed) {
    SCOPED_TRACE("typed name '" + typed + "'");
    EXPECT_EQ(fast.code, reference.code);
    EXPECT_EQ(fast.message, reference.message);
    EXPECT_EQ(fast.best, reference.best);
    ASSERT_EQ(fast.matches.size(), reference.matches.size());
    for (std::size_t i = 0; i < fast.matches.size(); ++i) {
        EXPECT_EQ(fast.matches[i].sameLength, reference.matches[i].sameLength);
        EXPECT_EQ(fast.matches[i].score, reference.matches[i].score);
        EXPECT_EQ(fast.matches[i].name.parts, reference.matches[i].name.parts);
    }
}

// The recognizer's own steps around the choice, on the straightforward path.
int recognizeByScan(RegisteredOptionStorage& storage, std::string const& argument, std::size_t& option,
                    std::string& message) {
    option = kNoOption;
    if (argument.size() < 2 || argument[0] != '-') {
        return 1;
    }
    std::size_t const hyphens = argument.size() > 2 && argument[1] == '-' ? 2 : 1;
    std::size_t const equals = argument.find('=');
    std::string const typed =
        argument.substr(hyphens, (equals == std::string::npos ? argument.size() : equals) - hyphens);
    Outcome const outcome = byScan(storage, typed);
    message = outcome.message;
    if (outcome.code == 2) {
        return 0;
    }
    if (outcome.code != 0) {
        return 1;
    }
    unsigned long index = 0;
    if (quen_test::scanForOption(storage, {outcome.best}, index) != 0) {
        return 1;
    }
    option = index;
    return 0;
}

}  // namespace

TEST_F(FastPath, IndexedBestMatchEqualsScoringEveryCandidate) {
    Corpus corpus(20261121);
    int compared = 0;
    for (int round = 0; round < 120; ++round) {
        RegisteredOptionStorage storage;
        std::vector<std::string> const known = corpus.populate(storage);
        quen_test::IndexedNameMatching parser;
        for (int i = 0; i < 80; ++i) {
            std::string const typed = corpus.typed(known);
            expectSame(byIndex(parser, storage, typed), byScan(storage, typed), typed);
            ++compared;
        }
        for (std::string const& name : known) {
            expectSame(byIndex(parser, storage, name), byScan(storage, name), name);
            ++compared;
        }
    }
    EXPECT_GT(compared, 10000);
}

TEST_F(FastPath, RecognizerAgreesWithScanOnEveryArgumentForm) {
    Corpus corpus(7);
    for (int round = 0; round < 60; ++round) {
        RegisteredOptionStorage storage;
        std::vector<std::string> const known = corpus.populate(storage);
        quen_test::RecognizerProbe<AbbreviationParser> parser(nullptr, nullptr, 0);
        for (int i = 0; i < 60; ++i) {
            std::string const typed = corpus.typed(known);
            for (std::string const& argument :
                 {"-" + typed, "--" + typed, "--" + typed + "=v", "---" + typed, typed, std::string("--")}) {
                SCOPED_TRACE("argument '" + argument + "'");
                std::string fastMessage;
                ArgumentList args(std::vector<std::string>{argument, "next"});
                int const fast = parser.recognize(args, storage, fastMessage);
                std::size_t option = kNoOption;
                std::string message;
                int const reference = recognizeByScan(storage, argument, option, message);
                EXPECT_EQ(fast, reference);
                EXPECT_EQ(parser.optionIndex(), option);
                EXPECT_EQ(fastMessage, message);
                EXPECT_EQ(args.size(), 2u);
            }
        }
    }
}

TEST_F(FastPath, IndexedNameLookupEqualsWalkingEveryOption) {
    Corpus corpus(99);
    for (int round = 0; round < 150; ++round) {
        RegisteredOptionStorage storage;
        std::vector<std::string> const known = corpus.populate(storage);
        for (int i = 0; i < 60; ++i) {
            std::vector<std::string> names;
            std::size_t const count = 1 + corpus.below(3);
            for (std::size_t j = 0; j < count; ++j) {
                names.push_back(corpus.typed(known));
            }
            unsigned long fastIndex = 12345;
            unsigned long scanIndex = 12345;
            int const fast = storage.findOption(names, fastIndex);
            EXPECT_EQ(fast, quen_test::scanForOption(storage, names, scanIndex));
            EXPECT_EQ(fastIndex, scanIndex);
            unsigned long oneFast = 12345;
            unsigned long oneScan = 12345;
            EXPECT_EQ(quen_test::isAdded(storage, names[0], oneFast),
                      quen_test::scanForOption(storage, {names[0]}, oneScan));
            EXPECT_EQ(oneFast, oneScan);
        }
    }
}

TEST_F(FastPath, KeptFirstPositionalEqualsWalkingEveryOption) {
    Corpus corpus(5);
    for (int round = 0; round < 300; ++round) {
        RegisteredOptionStorage storage;
        corpus.populate(storage);
        std::size_t first = kNoOption;
        for (std::size_t i = 0; i < storage.size() && first == kNoOption; ++i) {
            if (storage.at(i).isPositional()) {
                first = i;
            }
        }
        EXPECT_EQ(storage.firstPositional(), first);
    }
}

TEST_F(FastPath, SynonymOfARegisteredOptionReachesTheIndex) {
    RegisteredOptionStorage storage;
    IOption* const verbose = storage.option("verbose", "d", tarvo2::vt_bool, "g");
    storage.option("version", "d", tarvo2::vt_int, "g");
    verbose->synonym("loud");
    quen_test::IndexedNameMatching parser;
    std::size_t best = kNoOption;
    std::string message;
    ASSERT_EQ(parser.findBestIndexed(storage.names(), "no-lo", best, message), 0);
    EXPECT_EQ(storage.names().candidate(best).text, "no-loud");
    EXPECT_EQ(storage.names().candidate(best).option, 0u);
    unsigned long index = 9;
    EXPECT_EQ(quen_test::isAdded(storage, "no-loud", index), 0);
    EXPECT_EQ(index, 0u);
}

TEST_F(FastPath, CopyOfAStoredOptionDoesNotTouchTheIndex) {
    RegisteredOptionStorage storage;
    storage.option("alpha", "d", tarvo2::vt_int, "g");
    quen_3_1::OptionDescription copy = storage.at(0);
    copy.synonym("beta");
    copy.positional();
    unsigned long index = 9;
    EXPECT_EQ(quen_test::isAdded(storage, "beta", index), 1);
    EXPECT_EQ(storage.firstPositional(), kNoOption);
    EXPECT_EQ(storage.names().size(), 1u);
}

// ---------------------------------------------------------------- conversions

namespace {

std::uint64_t bitsOf(double d) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &d, sizeof bits);
    return bits;
}

// The kinds' limits and the texts at the edges of each rule.
char const* const kBoundaries[] = {"0",
                                   "1",
                                   "-1",
                                   "-0",
                                   "+0",
                                   "2",
                                   "2147483647",
                                   "2147483648",
                                   "-2147483648",
                                   "-2147483649",
                                   "4294967295",
                                   "4294967296",
                                   "-4294967295",
                                   "-4294967296",
                                   "9223372036854775807",
                                   "9223372036854775808",
                                   "-9223372036854775808",
                                   "-9223372036854775809",
                                   "18446744073709551615",
                                   "18446744073709551616",
                                   "-18446744073709551615",
                                   "-18446744073709551616",
                                   "0x7fffffffffffffff",
                                   "0xffffffffffffffff",
                                   "0x10000000000000000",
                                   "ffffffffffffffffh",
                                   "1e308",
                                   "1.7976931348623157e308",
                                   "1.7976931348623159e308",
                                   "1e309",
                                   "-1e309",
                                   "1e-400",
                                   "4.9e-324",
                                   "2.4703282292062327e-324",
                                   "2.2250738585072011e-308",
                                   "0.1",
                                   ".5",
                                   "5.",
                                   ".",
                                   "-.",
                                   "e5",
                                   "1e",
                                   "1e+",
                                   "1e-",
                                   "0e0",
                                   "00.00e00",
                                   "inf",
                                   "nan",
                                   "0x1p3",
                                   "  42",
                                   "\t-7",
                                   "",
                                   " ",
                                   "+",
                                   "-",
                                   "0x",
                                   "0X",
                                   "h",
                                   "0h",
                                   "x"};

// Texts built from what number extraction looks at: blanks, signs, zeros,
// "0x", digits, hexadecimal letters, points, exponents, the 'h' suffix and
// anything else, with the kinds' boundaries among them.
class NumberTexts {
public:
    explicit NumberTexts(std::uint32_t seed) : m_random(seed) {}

    std::string next() {
        switch (below(5)) {
            case 0:
                return std::string(kBoundaries[below(sizeof kBoundaries / sizeof kBoundaries[0])]) + tail();
            case 1:
                return anyBytes();
            default:
                return structured();
        }
    }

private:
    std::size_t below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random); }

    std::string pick(char const* set) { return std::string(1, set[below(std::strlen(set))]); }

    std::string repeat(char const* set, std::size_t most) {
        std::string text;
        std::size_t const count = below(most + 1);
        for (std::size_t i = 0; i < count; ++i) {
            text += pick(set);
        }
        return text;
    }

    std::string tail() { return below(3) == 0 ? repeat(" xh.e+-9aG,", 3) : std::string(); }

    std::string structured() {
        std::string text = repeat(" \t\n\v\f\r", below(4) == 0 ? 3 : 0);
        if (below(2) == 0) {
            text += pick("+-");
        }
        text += repeat("0", below(3) == 0 ? 4 : 1);
        if (below(5) == 0) {
            text += pick("xX");
        }
        text += repeat(below(3) == 0 ? "0123456789abcdefABCDEF" : "0123456789", below(4) == 0 ? 30 : 8);
        if (below(3) == 0) {
            text += "." + repeat("0123456789", 6);
        }
        if (below(4) == 0) {
            text += pick("eE") + (below(2) == 0 ? pick("+-") : std::string()) + repeat("0123456789", 4);
        }
        if (below(4) == 0) {
            text += pick("hH");
        }
        return text + tail();
    }

    std::string anyBytes() {
        std::string text;
        std::size_t const count = below(12);
        for (std::size_t i = 0; i < count; ++i) {
            text += static_cast<char>(1 + below(255));
        }
        return text;
    }

    std::mt19937 m_random;
};

}  // namespace

namespace {

// The stream-free extraction of one kind; only the unsigned 64-bit kind reads hexadecimal.
template <class T>
bool fastExtract(std::string const& text, T& value, bool /*hex*/) {
    return quen_3_1::extractClassic(text.c_str(), value);
}

bool fastExtract(std::string const& text, unsigned long long& value, bool hex) {
    return quen_3_1::extractClassic(text.c_str(), value, hex);
}

// Values compare as they are, doubles bit for bit.
template <class T>
T comparable(T value) {
    return value;
}

std::uint64_t comparable(double value) { return bitsOf(value); }

// Both extractions decide alike and, when they succeed, read the same value.
template <class T>
void expectSameExtraction(std::string const& text, bool hex = false) {
    T fast{};
    T slow{};
    bool const ok = quen_test::extractByStream(text.c_str(), slow, hex);
    ASSERT_EQ(fastExtract(text, fast, hex), ok) << "hex " << hex;
    if (ok) {
        EXPECT_EQ(comparable(fast), comparable(slow)) << "hex " << hex;
    }
}

}  // namespace

TEST_F(FastPath, ClassicExtractionEqualsTheStreamOnArbitraryText) {
    NumberTexts texts(424242);
    for (int i = 0; i < 40000; ++i) {
        std::string const text = texts.next();
        SCOPED_TRACE("text '" + text + "'");
        ASSERT_NO_FATAL_FAILURE(expectSameExtraction<bool>(text));
        ASSERT_NO_FATAL_FAILURE(expectSameExtraction<int>(text));
        ASSERT_NO_FATAL_FAILURE(expectSameExtraction<unsigned int>(text));
        ASSERT_NO_FATAL_FAILURE(expectSameExtraction<long long>(text));
        for (bool hex : {false, true}) {
            ASSERT_NO_FATAL_FAILURE(expectSameExtraction<unsigned long long>(text, hex));
        }
        ASSERT_NO_FATAL_FAILURE(expectSameExtraction<double>(text));
    }
}

namespace {

char const kHexDigits[] = "1234567890ABCDEFabcdef";

bool allHexDigits(std::string const& text, std::size_t from, std::size_t to) {
    return from >= to || text.find_first_not_of(kHexDigits, from) >= to;
}

template <class T>
tarvo2::variant_t convertedByStream(std::string const& text) {
    T value{};
    return quen_test::extractByStream(text.c_str(), value) ? tarvo2::variant_t(value) : tarvo2::variant_t();
}

// The conversions as first written: a fresh stream for every value.
tarvo2::variant_t fromStringByStream(tarvo2::kel_variant_type_t kind, std::string const& text) {
    switch (kind) {
        case tarvo2::vt_bool:
            return convertedByStream<bool>(text);
        case tarvo2::vt_int:
            return convertedByStream<int>(text);
        case tarvo2::vt_uint:
            return convertedByStream<unsigned int>(text);
        case tarvo2::vt_int64:
            return convertedByStream<long long>(text);
        case tarvo2::vt_double:
            return convertedByStream<double>(text);
        case tarvo2::vt_uint64: {
            bool hex = false;
            if (text.compare(0, 2, "0x") == 0 || text.compare(0, 2, "0X") == 0) {
                hex = allHexDigits(text, 2, text.size());
            }
            std::string const last = text.substr(text.size() - 1);
            if ((last == "h" || last == "H") && allHexDigits(text, 0, text.size() - 1)) {
                hex = true;
            }
            unsigned long long value = 0;
            return quen_test::extractByStream(text.c_str(), value, hex) ? tarvo2::variant_t(value)
                                                                        : tarvo2::variant_t();
        }
        default:
            return tarvo2::variant_t();
    }
}

tarvo2::kel_variant_type_t const kNumberKinds[] = {tarvo2::vt_bool,  tarvo2::vt_int,    tarvo2::vt_uint,
                                                   tarvo2::vt_int64, tarvo2::vt_uint64, tarvo2::vt_double};

void expectSameConversion(tarvo2::kel_variant_type_t kind, std::string const& text) {
    SCOPED_TRACE("kind " + std::to_string(kind) + ", text '" + text + "'");
    quen_3_1::Garbage keeper;
    quen_3_1::OptionDescription const option({"x"}, "g", "", "", kind, &keeper);
    bool fastThrew = false;
    bool slowThrew = false;
    tarvo2::variant_t fast;
    tarvo2::variant_t slow;
    try {
        fast = option.fromString(text.c_str(), &keeper);
    } catch (std::out_of_range const&) {
        fastThrew = true;
    }
    try {
        slow = fromStringByStream(kind, text.c_str());
    } catch (std::out_of_range const&) {
        slowThrew = true;
    }
    ASSERT_EQ(fastThrew, slowThrew);
    EXPECT_EQ(fast.m_type, slow.m_type);
    EXPECT_EQ(fast.m_data, slow.m_data);
}

// Digits grouped by thousands with '.', and ',' as the decimal point.
class GroupingPunctuation : public std::numpunct<char> {
protected:
    char do_thousands_sep() const override { return '.'; }
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
};

class GlobalLocale {
public:
    explicit GlobalLocale(std::locale const& locale) : m_previous(std::locale::global(locale)) {}
    GlobalLocale(GlobalLocale const&) = delete;
    GlobalLocale& operator=(GlobalLocale const&) = delete;
    ~GlobalLocale() { std::locale::global(m_previous); }

private:
    std::locale m_previous;
};

}  // namespace

TEST_F(FastPath, ConversionOfEveryKindEqualsAFreshStream) {
    NumberTexts texts(8675309);
    for (int i = 0; i < 15000; ++i) {
        std::string const text = texts.next();
        for (tarvo2::kel_variant_type_t kind : kNumberKinds) {
            expectSameConversion(kind, text);
        }
    }
}

TEST_F(FastPath, ConversionUnderAnotherGlobalLocaleEqualsAFreshStream) {
    GlobalLocale const grouping(std::locale(std::locale::classic(), new GroupingPunctuation));
    EXPECT_EQ(quen_3_1::classicExtraction(), quen_3_1::ExtractionSupport::StreamOnly);
    for (char const* text : {"1.234", "12.345.678", "1,5", "1.5", "1.234,5e1", ".123", "1..2"}) {
        for (tarvo2::kel_variant_type_t kind : kNumberKinds) {
            expectSameConversion(kind, text);
        }
    }
    NumberTexts texts(31337);
    for (int i = 0; i < 2000; ++i) {
        std::string const text = texts.next();
        for (tarvo2::kel_variant_type_t kind : kNumberKinds) {
            expectSameConversion(kind, text);
        }
    }
}

namespace {

// What a fresh stream in its default state writes for `value`.
template <class T>
std::string renderedByStream(T value) {
    std::stringstream stream;
    stream << value;
    return stream.str();
}

template <class T>
void expectSameRendering(T value) {
    quen_3_1::ClassicRendering rendering;
    EXPECT_EQ(std::string(rendering.render(value)), renderedByStream(value)) << renderedByStream(value);
}

}  // namespace

TEST_F(FastPath, ClassicRenderingEqualsAFreshStream) {
    GlobalLocale const classic(std::locale::classic());
    std::mt19937_64 random(424242);
    expectSameRendering(true);
    expectSameRendering(false);
    for (int value : {0, -1, 1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        expectSameRendering(value);
    }
    expectSameRendering(std::numeric_limits<unsigned int>::max());
    expectSameRendering(std::numeric_limits<long long>::min());
    expectSameRendering(std::numeric_limits<unsigned long long>::max());
    for (double value : {0.0, -0.0, 0.5, 1e-5, 1e-4, 123456.0, 1234567.0, 0.1 + 0.2, 1e300, -1e-300, 5e-324,
                         std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity(),
                         -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        expectSameRendering(value);
    }
    for (int i = 0; i < 5000; ++i) {
        std::uint64_t const bits = random();
        expectSameRendering(static_cast<int>(static_cast<std::uint32_t>(bits)));
        expectSameRendering(static_cast<unsigned int>(bits >> 32));
        expectSameRendering(static_cast<long long>(bits));
        expectSameRendering(static_cast<unsigned long long>(bits));
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        expectSameRendering(number);
        expectSameRendering(static_cast<double>(static_cast<std::int32_t>(bits)) / 1000.0);
    }
}

#if defined(__GLIBCXX__) && defined(__GLIBC__)
TEST_F(FastPath, ClassicGlobalLocaleTakesTheFastPath) {
    GlobalLocale const classic(std::locale::classic());
    EXPECT_EQ(quen_3_1::classicExtraction(), quen_3_1::ExtractionSupport::Classic);
}
#endif

namespace {

// Texts over few characters, so that blanks of every kind, comment marks,
// carriage returns and empty lines meet in every order.
std::string optionText(std::mt19937& random) {
    static char const kAlphabet[] = {' ', '\t', '\r', '\n', '\v', '\f', ';',    '#',   '-',
                                     'a', '=',  'x',  '\n', '\r', ' ',  '\xa0', '\x85'};
    std::uniform_int_distribution<std::size_t> length(0, 40);
    std::uniform_int_distribution<std::size_t> pick(0, sizeof kAlphabet - 1);
    std::string text(length(random), ' ');
    for (char& c : text) {
        c = kAlphabet[pick(random)];
    }
    return text;
}

// The classic table, with '-' and the byte 0xA0 also counted as white space.
class WideBlanks : public std::ctype<char> {
public:
    WideBlanks() : std::ctype<char>(table()) {}

private:
    static mask const* table() {
        static std::vector<mask> const blanks = [] {
            std::vector<mask> t(classic_table(), classic_table() + table_size);
            t[static_cast<unsigned char>('-')] |= space;
            t[0xa0] |= space;
            return t;
        }();
        return blanks.data();
    }
};

}  // namespace

TEST_F(FastPath, OptionTextLinesEqualReadingAStringStream) {
    for (char const* text : {"", "\n", "-a", "-a\n", "  -a\r\n\t-a\n-a  ", "#-a\n;-b\n-c#d", "\r\n\r", "\n\n-x\n\n"}) {
        EXPECT_EQ(quen_test::argumentsOfText(text), quen_test::argumentsOfTextByStream(text)) << text;
    }
    std::mt19937 random(2718281);
    for (int i = 0; i < 20000; ++i) {
        std::string const text = optionText(random);
        ASSERT_EQ(quen_test::argumentsOfText(text), quen_test::argumentsOfTextByStream(text)) << text;
    }
}

TEST_F(FastPath, OptionTextLinesFollowTheGlobalLocalesBlanks) {
    GlobalLocale const wide(std::locale(std::locale::classic(), new WideBlanks));
    EXPECT_EQ(quen_test::argumentsOfText("--a\n\xa0-b"), std::vector<std::string>({"a", "b"}));
    std::mt19937 random(1414213);
    for (int i = 0; i < 5000; ++i) {
        std::string const text = optionText(random);
        ASSERT_EQ(quen_test::argumentsOfText(text), quen_test::argumentsOfTextByStream(text)) << text;
    }
}
