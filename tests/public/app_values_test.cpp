// Values bound to variables of their own C++ type, read whole.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>

#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "support/app_harness.h"

using quen_test::errorTail;
using quen_test::parseLine;

namespace {

TEST(WholeNumbers, IntegerTakesItsText) {
    quen_3_1::App app("prog");
    int width = 1;
    app.option("width", width, "Columns.");
    quen_3_1::Result const result = parseLine(app, {"--width=-12"});
    EXPECT_FALSE(result.done());
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(width, -12);
}

TEST(WholeNumbers, TrailingCharactersAreRefusedNamingOptionAndText) {
    quen_3_1::App app("prog");
    int width = 1;
    app.option("width", width, "Columns.");
    quen_3_1::Result const result = parseLine(app, {"--width=12x"});
    EXPECT_TRUE(result.done());
    EXPECT_EQ(result.exitCode(), 2);
    EXPECT_EQ(result.message(),
              "prog: error: Option 'width' does not take '12x': a whole integer is required\n" + errorTail());
    EXPECT_EQ(width, 1);
}

TEST(WholeNumbers, HexadecimalIsNotAnInteger) {
    quen_3_1::App app("prog");
    int count = 5;
    app.option("max-count", count, "Most.");
    quen_3_1::Result const result = parseLine(app, {"--max-count", "0x10"});
    EXPECT_EQ(result.exitCode(), 2);
    EXPECT_EQ(result.message(),
              "prog: error: Option 'max-count' does not take '0x10': a whole integer is required\n" + errorTail());
    EXPECT_EQ(count, 5);
}

TEST(WholeNumbers, FractionIsNotAnInteger) {
    quen_3_1::App app("prog");
    long long size = 0;
    app.option("size", size, "Bytes.");
    EXPECT_EQ(parseLine(app, {"--size=1.5"}).message(),
              "prog: error: Option 'size' does not take '1.5': a whole 64 bit integer is required\n" + errorTail());
}

TEST(WholeNumbers, EmptyTextIsRefused) {
    quen_3_1::App app("prog");
    double ratio = 0.5;
    app.option("ratio", ratio, "Share.");
    EXPECT_EQ(parseLine(app, {"--ratio", ""}).exitCode(), 2);
    EXPECT_EQ(ratio, 0.5);
}

TEST(WholeNumbers, OutOfRangeIntegerIsRefused) {
    quen_3_1::App app("prog");
    int level = 0;
    app.option("level", level, "Depth.");
    quen_3_1::Result const result = parseLine(app, {"--level=99999999999"});
    EXPECT_EQ(result.exitCode(), 2);
    EXPECT_NE(result.message().find("'99999999999'"), std::string::npos);
}

TEST(WholeNumbers, NegativeUnsignedIsRefused) {
    quen_3_1::App app("prog");
    unsigned count = 3;
    app.option("count", count, "How many.");
    EXPECT_EQ(parseLine(app, {"--count=-1"}).message(),
              "prog: error: Option 'count' does not take '-1': a whole unsigned integer is required\n" + errorTail());
    EXPECT_EQ(count, 3u);
}

TEST(WholeNumbers, Unsigned64KeepsTheLibraryHexadecimalForms) {
    quen_3_1::App app("prog");
    std::vector<unsigned long long> masks;
    app.option("mask", masks, "Bits.");
    EXPECT_EQ(parseLine(app, {"--mask=0x1F", "--mask=1fH", "--mask=123"}).exitCode(), 0);
    EXPECT_EQ(masks, (std::vector<unsigned long long>{31, 31, 123}));
}

TEST(WholeNumbers, Unsigned64RefusesHexadecimalWithoutMarker) {
    quen_3_1::App app("prog");
    unsigned long long mask = 7;
    app.option("mask", mask, "Bits.");
    EXPECT_EQ(parseLine(app, {"--mask=FF"}).exitCode(), 2);
    EXPECT_EQ(parseLine(app, {"--mask=18446744073709551616"}).exitCode(), 2);
    EXPECT_EQ(mask, 7u);
}

TEST(WholeNumbers, DoubleRefusesTrailingText) {
    quen_3_1::App app("prog");
    double ratio = 0.5;
    app.option("ratio", ratio, "Share.");
    EXPECT_EQ(parseLine(app, {"--ratio=2.5e1"}).exitCode(), 0);
    EXPECT_EQ(ratio, 25.0);
    EXPECT_EQ(parseLine(app, {"--ratio=2.5kg"}).message(),
              "prog: error: Option 'ratio' does not take '2.5kg': a finite decimal number is required\n" + errorTail());
    EXPECT_EQ(parseLine(app, {"--ratio=inf"}).exitCode(), 2);
}

TEST(WholeNumbers, DecimalIsTheNearestDoubleWhateverItsLength) {
    std::vector<std::string> const texts = {"0.1",
                                            "-0.0",
                                            "5.",
                                            ".5",
                                            "+2.75",
                                            "3.14159265358979",
                                            "1e-3",
                                            "0.3000000000000000444",
                                            "123456789012345.6",
                                            "9007199254740993",
                                            "0.0000000000000000000001",
                                            "0.00000000000000000000001",
                                            "000000000000000000000000000000012.5"};
    quen_3_1::App app("prog");
    std::vector<double> ratios;
    app.option("ratio", ratios, "Shares.");
    std::vector<std::string> args;
    for (std::string const& text : texts) {
        args.push_back("--ratio=" + text);
    }
    ASSERT_EQ(parseLine(app, args).exitCode(), 0);
    ASSERT_EQ(ratios.size(), texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        double const expected = std::strtod(texts[i].c_str(), nullptr);
        EXPECT_EQ(std::memcmp(&ratios[i], &expected, sizeof expected), 0) << texts[i];
    }
}

TEST(WholeNumbers, IntegersKeepTheirBoundsExactly) {
    quen_3_1::App app("prog");
    long long wide = 0;
    unsigned long long mask = 0;
    unsigned count = 0;
    app.option("wide", wide, "Wide.");
    app.option("mask", mask, "Bits.");
    app.option("count", count, "How many.");
    EXPECT_EQ(
        parseLine(app, {"--wide=-9223372036854775808", "--mask=18446744073709551615", "--count=4294967295"}).exitCode(),
        0);
    EXPECT_EQ(wide, std::numeric_limits<long long>::min());
    EXPECT_EQ(mask, std::numeric_limits<unsigned long long>::max());
    EXPECT_EQ(count, std::numeric_limits<unsigned>::max());
    EXPECT_EQ(parseLine(app, {"--wide=9223372036854775807"}).exitCode(), 0);
    EXPECT_EQ(wide, std::numeric_limits<long long>::max());
    EXPECT_EQ(parseLine(app, {"--wide=9223372036854775808"}).exitCode(), 2);
    EXPECT_EQ(parseLine(app, {"--wide=-9223372036854775809"}).exitCode(), 2);
    EXPECT_EQ(parseLine(app, {"--count=4294967296"}).exitCode(), 2);
    EXPECT_EQ(parseLine(app, {"--wide=-"}).exitCode(), 2);
    EXPECT_EQ(wide, std::numeric_limits<long long>::max());
}

TEST(BoundVariables, FlagTakesNameAndNoName) {
    quen_3_1::App app("prog");
    bool verbose = false;
    bool color = true;
    app.option("verbose,v", verbose, "Say more.");
    app.option("color", color, "Paint.");
    EXPECT_EQ(parseLine(app, {"-v", "--no-color"}).exitCode(), 0);
    EXPECT_TRUE(verbose);
    EXPECT_FALSE(color);
}

TEST(BoundVariables, UntouchedVariableKeepsItsDefault) {
    quen_3_1::App app("prog");
    int jobs = 4;
    std::string mode = "fast";
    app.option("jobs,j", jobs, "Copies at once.");
    app.option("mode", mode, "How to copy.");
    EXPECT_EQ(parseLine(app, {}).exitCode(), 0);
    EXPECT_EQ(jobs, 4);
    EXPECT_EQ(mode, "fast");
}

TEST(BoundVariables, OptionalIsEmptyWhenNotGiven) {
    quen_3_1::App app("prog");
    std::optional<int> limit;
    std::optional<std::string> name;
    app.option("limit", limit, "Most.");
    app.option("name", name, "Who.");
    EXPECT_EQ(parseLine(app, {"--limit=7"}).exitCode(), 0);
    EXPECT_EQ(limit, 7);
    EXPECT_FALSE(name.has_value());
}

TEST(BoundVariables, ScalarGivenTwiceTakesTheLastValue) {
    quen_3_1::App app("prog");
    int jobs = 1;
    app.option("jobs", jobs, "Copies.");
    EXPECT_EQ(parseLine(app, {"--jobs=2", "--jobs=5"}).exitCode(), 0);
    EXPECT_EQ(jobs, 5);
}

TEST(BoundVariables, VectorTakesEveryValueInOrderReplacingItsDefault) {
    quen_3_1::App app("prog");
    std::vector<std::string> tags{"default"};
    app.option("tag", tags, "Labels.");
    EXPECT_EQ(parseLine(app, {"--tag=b", "--tag", "a"}).exitCode(), 0);
    EXPECT_EQ(tags, (std::vector<std::string>{"b", "a"}));
}

TEST(BoundVariables, ValuesAreNotSplitUnlessAsked) {
    quen_3_1::App app("prog");
    std::vector<std::string> whole;
    std::vector<int> split;
    app.option("whole", whole, "Kept.");
    app.option("split", split, "Cut.").split(',');
    EXPECT_EQ(parseLine(app, {"--whole=a,b", "--split=1,2,3"}).exitCode(), 0);
    EXPECT_EQ(whole, (std::vector<std::string>{"a,b"}));
    EXPECT_EQ(split, (std::vector<int>{1, 2, 3}));
}

TEST(BoundVariables, FailedParseAssignsNothing) {
    quen_3_1::App app("prog");
    int jobs = 1;
    int level = 1;
    app.option("jobs", jobs, "Copies.");
    app.option("level", level, "Depth.");
    EXPECT_EQ(parseLine(app, {"--jobs=3", "--level=x"}).exitCode(), 2);
    EXPECT_EQ(jobs, 1);
}

TEST(BoundVariables, ParseNeverPrints) {
    quen_3_1::App app("prog");
    int jobs = 1;
    app.option("jobs", jobs, "Copies.");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    parseLine(app, {"quenoption=quenlogenable=1", "--jobs=2"});
    parseLine(app, {"--help"});
    parseLine(app, {"--jobs=x"});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// Each kind's number reaches its variable exactly, whether it came as an option's value,
// a later occurrence that replaced an earlier one, the environment or a positional.
TEST(WholeNumbers, EveryKindReachesItsVariableFromEverySource) {
    quen_3_1::App app("prog");
    int small = 0;
    unsigned count = 0;
    long long big = 0;
    unsigned long long mask = 0;
    double ratio = 0;
    bool quiet = false;
    std::vector<double> points;
    app.envPrefix("QAPP_WHOLE");
    app.option("small", small, "A.");
    app.option("count", count, "B.");
    app.option("big", big, "C.");
    app.option("mask", mask, "D.");
    app.option("ratio", ratio, "E.");
    app.option("quiet", quiet, "F.");
    app.positional("points", points, "G.");
    setenv("QAPP_WHOLE_BIG", "-9007199254740993", 1);
    quen_3_1::Result const result = parseLine(app, {"--small=-7", "--count", "4000000000", "--mask=0x1F", "--ratio=9.5",
                                                    "--ratio=0.1", "--quiet", "2.5", "1e-300", "0.30000000000000004"});
    unsetenv("QAPP_WHOLE_BIG");
    EXPECT_FALSE(result.done());
    EXPECT_EQ(small, -7);
    EXPECT_EQ(count, 4000000000U);
    EXPECT_EQ(big, -9007199254740993LL);
    EXPECT_EQ(mask, 31U);
    EXPECT_EQ(ratio, 0.1);
    EXPECT_TRUE(quiet);
    EXPECT_EQ(points, (std::vector<double>{2.5, 1e-300, 0.30000000000000004}));
}

}  // namespace
