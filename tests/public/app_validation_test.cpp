// Allowed values, ranges, checks and the relations between options.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "support/app_harness.h"

using quen_test::errorTail;
using quen_test::parseLine;

namespace {

class Modes : public testing::Test {
protected:
    Modes() { app.option("mode", mode, "How to copy.").allow({"fast", "mirror", "safe", "safer"}); }
    quen_3_1::App app{"prog"};
    std::string mode = "fast";
};

TEST_F(Modes, AbbreviatedValueIsWrittenOutInFull) {
    EXPECT_EQ(parseLine(app, {"--mode=mi"}).exitCode(), 0);
    EXPECT_EQ(mode, "mirror");
}

TEST_F(Modes, AmbiguousValueGetsTheLibraryMessage) {
    EXPECT_EQ(parseLine(app, {"--mode=sa"}).message(),
              "prog: error: Value validation problem in argument '--mode=sa': Ambiguous value for option 'mode'. "
              "Possible values follows: 'fast', 'mirror', 'safe', 'safer'\n" +
                  errorTail());
    EXPECT_EQ(mode, "fast");
}

TEST_F(Modes, RefusedValueGetsTheLibraryMessage) {
    EXPECT_EQ(parseLine(app, {"--mode", "slow"}).message(),
              "prog: error: Value validation problem in argument '--mode': Option 'mode' does not allow value "
              "'slow'. Possible values follows: 'fast', 'mirror', 'safe', 'safer'\n" +
                  errorTail());
}

TEST(AllowedNumbers, OnlyListedNumbersPass) {
    quen_3_1::App app("prog");
    int level = 1;
    app.option("level", level, "Depth.").allow({1, 2, 3});
    EXPECT_EQ(parseLine(app, {"--level=2"}).exitCode(), 0);
    EXPECT_EQ(level, 2);
    EXPECT_EQ(parseLine(app, {"--level=5"}).exitCode(), 2);
}

TEST(Ranges, BothEndsIncluded) {
    quen_3_1::App app("prog");
    int jobs = 4;
    app.option("jobs,j", jobs, "Copies.").range(1, 64);
    EXPECT_EQ(parseLine(app, {"-j", "64"}).exitCode(), 0);
    EXPECT_EQ(jobs, 64);
    EXPECT_EQ(parseLine(app, {"-j", "1"}).exitCode(), 0);
    EXPECT_EQ(parseLine(app, {"--jobs=0"}).message(),
              "prog: error: Option 'jobs' does not take '0': the value must be from 1 to 64\n" + errorTail());
}

TEST(Ranges, DoubleRange) {
    quen_3_1::App app("prog");
    double ratio = 0.5;
    app.option("ratio", ratio, "Share.").range(0.0, 1.0);
    EXPECT_EQ(parseLine(app, {"--ratio=1.5"}).message(),
              "prog: error: Option 'ratio' does not take '1.5': the value must be from 0 to 1\n" + errorTail());
}

TEST(Checks, NonEmptyAnswerIsTheError) {
    quen_3_1::App app("prog");
    std::vector<int> sizes;
    app.option("size", sizes, "Sizes.").check([](int const& value) {
        return value % 2 == 0 ? std::string() : std::string("an even number is required");
    });
    EXPECT_EQ(parseLine(app, {"--size=2", "--size=4"}).exitCode(), 0);
    EXPECT_EQ(sizes, (std::vector<int>{2, 4}));
    EXPECT_EQ(parseLine(app, {"--size=2", "--size=3"}).message(),
              "prog: error: Option 'size' does not take '3': an even number is required\n" + errorTail());
}

TEST(Relations, RequiredOptionMissing) {
    quen_3_1::App app("prog");
    std::string name;
    app.option("name", name, "Who.").required();
    EXPECT_EQ(parseLine(app, {}).message(), "prog: error: Option 'name' is required\n" + errorTail());
    EXPECT_EQ(parseLine(app, {"--name=x"}).exitCode(), 0);
}

TEST(Relations, NeedsAndExcludes) {
    quen_3_1::App app("prog");
    std::string user;
    std::string password;
    bool anonymous = false;
    app.option("password", password, "Secret.").needs("user");
    app.option("user", user, "Who.");
    app.option("anonymous", anonymous, "Nobody.").excludes("user");
    EXPECT_EQ(parseLine(app, {"--password=x"}).message(),
              "prog: error: Option 'password' needs option 'user'\n" + errorTail());
    EXPECT_EQ(parseLine(app, {"--password=x", "--user=u"}).exitCode(), 0);
    EXPECT_EQ(parseLine(app, {"--anonymous", "--user=u"}).message(),
              "prog: error: Option 'anonymous' can not be given with option 'user'\n" + errorTail());
}

TEST(Relations, ExclusiveGroup) {
    quen_3_1::App app("prog");
    bool json = false;
    bool xml = false;
    app.option("json", json, "As JSON.");
    app.option("xml", xml, "As XML.");
    app.exclusive({"json", "xml"}, true);
    EXPECT_EQ(parseLine(app, {"--json", "--xml"}).message(),
              "prog: error: Only one of the options 'json', 'xml' may be given\n" + errorTail());
    EXPECT_EQ(parseLine(app, {}).message(),
              "prog: error: One of the options 'json', 'xml' is required\n" + errorTail());
    EXPECT_EQ(parseLine(app, {"--xml"}).exitCode(), 0);
    EXPECT_TRUE(xml);
}

TEST(Positionals, FilledInOrderAndVectorTakesTheRest) {
    quen_3_1::App app("prog");
    std::string source;
    int copies = 1;
    std::vector<std::string> targets;
    app.positional("source", source, "From.").required();
    app.positional("copies", copies, "How many.");
    app.positional("targets", targets, "To.");
    EXPECT_EQ(parseLine(app, {"a", "-v0", "3", "b", "c"}).exitCode(), 2);
    EXPECT_EQ(parseLine(app, {"a", "3", "b", "--", "-c"}).exitCode(), 0);
    EXPECT_EQ(source, "a");
    EXPECT_EQ(copies, 3);
    EXPECT_EQ(targets, (std::vector<std::string>{"b", "-c"}));
}

TEST(Positionals, ValueCheckedWholeAndAgainstAllowedValues) {
    quen_3_1::App app("prog");
    int copies = 1;
    std::string mode = "fast";
    app.positional("copies", copies, "How many.");
    app.positional("mode", mode, "How.").allow({"fast", "mirror"});
    EXPECT_EQ(parseLine(app, {"3x"}).message(),
              "prog: error: Option 'copies' does not take '3x': a whole integer is required\n"
              "Usage: prog [options] [<copies>] [<mode>]\nTry 'prog --help' for more information.\n");
    EXPECT_EQ(parseLine(app, {"2", "mi"}).exitCode(), 0);
    EXPECT_EQ(mode, "mirror");
    EXPECT_EQ(parseLine(app, {"2", "x"}).message(),
              "prog: error: Option 'mode' does not allow value 'x'. Possible values follows: 'fast', 'mirror'\n"
              "Usage: prog [options] [<copies>] [<mode>]\nTry 'prog --help' for more information.\n");
}

TEST(Positionals, SurplusArgumentIsAnError) {
    quen_3_1::App app("prog");
    std::string only;
    app.positional("only", only, "One.");
    EXPECT_EQ(parseLine(app, {"a", "b"}).message(),
              "prog: error: Unexpected argument 'b'\nUsage: prog [options] [<only>]\n"
              "Try 'prog --help' for more information.\n");
}

TEST(Positionals, RequiredVectorNeedsOne) {
    quen_3_1::App app("prog");
    std::vector<std::string> files;
    app.positional("files", files, "What.").required();
    EXPECT_EQ(parseLine(app, {}).message(),
              "prog: error: Option 'files' is required\nUsage: prog [options] <files>...\n"
              "Try 'prog --help' for more information.\n");
}

TEST(Positionals, ArgumentsAfterTerminatorWithoutPositionalsAreRest) {
    quen_3_1::App app("prog");
    bool verbose = false;
    app.option("verbose", verbose, "More.");
    quen_3_1::Result const result = parseLine(app, {"--verbose", "--", "--verbose", "x"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.rest(), (std::vector<std::string>{"--verbose", "x"}));
    EXPECT_EQ(result.count("verbose"), 1u);
}

}  // namespace
