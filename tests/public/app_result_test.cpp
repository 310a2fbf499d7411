// Result: a snapshot of plain data, in command-line order, that any number
// of nested loops may read.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>
#include <quen_3_1/quen.h>

#include <string>
#include <utility>
#include <vector>

#include "support/app_harness.h"

using quen_test::parseLine;

namespace {

std::vector<std::string> const kLine{"--target=a", "-D", "x=1", "--target=b", "-D", "y=2", "--target=c"};

TEST(ResultEntries, CommandLineOrderWithIncreasingSequenceNumbers) {
    quen_3_1::App app("prog");
    std::vector<std::string> targets;
    std::vector<std::string> defines;
    app.option("target", targets, "Build these.");
    app.option("define,D", defines, "Set these.");
    quen_3_1::Result const result = parseLine(app, kLine);
    ASSERT_EQ(result.exitCode(), 0);
    std::vector<std::pair<std::string, std::string>> seen;
    for (quen_3_1::Entry const& entry : result.entries()) {
        seen.emplace_back(entry.name, entry.text);
        EXPECT_EQ(entry.source, quen_3_1::Source::CommandLine);
    }
    EXPECT_EQ(seen, (std::vector<std::pair<std::string, std::string>>{
                        {"target", "a"}, {"define", "x=1"}, {"target", "b"}, {"define", "y=2"}, {"target", "c"}}));
    for (std::size_t i = 1; i < result.entries().size(); ++i) {
        EXPECT_LT(result.entries()[i - 1].sequence, result.entries()[i].sequence);
    }
}

// With quen.h a query inside a query of another option moves the one cursor:
// the outer loop stops after its first value.
TEST(ResultEntries, NestedLoopLosesValuesWithTheBinaryInterface) {
    quen_3_1::IParser* parser = nullptr;
    ASSERT_EQ(quen_3_1::createParser(&parser, 0), 0);
    parser->option("target", "Build these.", tarvo2::vt_str, "g")->tokenize(0);
    parser->option("define,D", "Set these.", tarvo2::vt_str, "g")->tokenize(0);
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    std::vector<std::string> texts{"prog"};
    texts.insert(texts.end(), kLine.begin(), kLine.end());
    std::vector<char*> argv;
    for (std::string& text : texts) {
        argv.push_back(text.data());
    }
    ASSERT_EQ(parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result), 0);
    std::size_t outer = 0;
    for (quen_3_1::Value target = result->get("target"); target.m_status == 0; target = result->next("target")) {
        ++outer;
        for (quen_3_1::Value define = result->get("define"); define.m_status == 0; define = result->next("define")) {
        }
    }
    EXPECT_EQ(outer, 1u);
    result->destroy();
    parser->destroy();
}

TEST(ResultEntries, NestedLoopsSeeEverything) {
    quen_3_1::App app("prog");
    std::vector<std::string> targets;
    std::vector<std::string> defines;
    app.option("target", targets, "Build these.");
    app.option("define,D", defines, "Set these.");
    quen_3_1::Result const result = parseLine(app, kLine);
    std::size_t pairs = 0;
    for (quen_3_1::Entry const& target : result.entries("target")) {
        for (quen_3_1::Entry const& define : result.entries("D")) {
            pairs += target.name == "target" && define.name == "define" ? 1u : 0u;
        }
        EXPECT_TRUE(result.given("D"));
    }
    EXPECT_EQ(pairs, 6u);
}

TEST(ResultEntries, CopiesShareTheSnapshot) {
    quen_3_1::App app("prog");
    int jobs = 1;
    app.option("jobs,j", jobs, "Workers.");
    quen_3_1::Result const first = parseLine(app, {"-j", "2", "-j", "3"});
    quen_3_1::Result const copy = first;
    quen_3_1::Result const second = parseLine(app, {});
    EXPECT_EQ(copy.count("jobs"), 2u);
    EXPECT_EQ(copy.count("j"), 2u);
    ASSERT_EQ(copy.entries("j").size(), 2u);
    EXPECT_EQ(copy.entries("j")[1].text, "3");
    EXPECT_EQ(second.count("jobs"), 0u);
    EXPECT_FALSE(second.given("jobs"));
    EXPECT_TRUE(second.entries().empty());
}

TEST(ResultEntries, SplitValuesAreOneOccurrence) {
    quen_3_1::App app("prog");
    std::vector<int> sizes;
    app.option("size", sizes, "Sizes.").split(',');
    quen_3_1::Result const result = parseLine(app, {"--size=1,2", "--size=3"});
    EXPECT_EQ(result.count("size"), 2u);
    EXPECT_EQ(result.entries("size").size(), 3u);
}

TEST(ResultEntries, PositionalsCountedAndListed) {
    quen_3_1::App app("prog");
    std::vector<std::string> files;
    bool verbose = false;
    app.option("verbose,v", verbose, "More.");
    app.positional("files", files, "What.");
    quen_3_1::Result const result = parseLine(app, {"a", "-v", "b"});
    EXPECT_EQ(result.count("files"), 2u);
    ASSERT_EQ(result.entries().size(), 3u);
    EXPECT_EQ(result.entries()[0].name, "files");
    EXPECT_EQ(result.entries()[1].name, "verbose");
    EXPECT_EQ(result.entries()[2].text, "b");
    EXPECT_FALSE(result.given("nothing"));
}

// Name and text of every entry; fails the test when two entries share a number
// or the numbers do not increase.
std::vector<std::pair<std::string, std::string>> inIncreasingOrder(quen_3_1::Result const& result) {
    std::vector<std::pair<std::string, std::string>> seen;
    for (std::size_t i = 0; i < result.entries().size(); ++i) {
        quen_3_1::Entry const& entry = result.entries()[i];
        if (i > 0) {
            EXPECT_LT(result.entries()[i - 1].sequence, entry.sequence) << entry.name << " '" << entry.text << "'";
        }
        seen.emplace_back(entry.name, entry.text);
    }
    return seen;
}

TEST(ResultEntries, ValuesAfterTerminatorHaveNumbersOfTheirOwn) {
    quen_3_1::App app("prog");
    int quality = 0;
    std::vector<std::string> files;
    app.option("quality", quality, "How good.");
    app.positional("files", files, "What.");
    quen_3_1::Result const result = parseLine(app, {"a.jpg", "--quality", "5", "b.jpg", "--", "-odd.jpg", "c.jpg"});
    ASSERT_EQ(result.exitCode(), 0) << result.message();
    EXPECT_EQ(
        inIncreasingOrder(result),
        (std::vector<std::pair<std::string, std::string>>{
            {"files", "a.jpg"}, {"quality", "5"}, {"files", "b.jpg"}, {"files", "-odd.jpg"}, {"files", "c.jpg"}}));
}

TEST(ResultEntries, TerminatorFirstInCommandStillFollowsTheProgramOptions) {
    quen_3_1::App app("prog");
    int level = 0;
    std::vector<std::string> files;
    app.option("level", level, "How much.");
    app.command("add", "Add.").positional("files", files, "What.");
    quen_3_1::Result const result = parseLine(app, {"--level=2", "add", "--", "x", "y"});
    ASSERT_EQ(result.exitCode(), 0) << result.message();
    EXPECT_EQ(inIncreasingOrder(result),
              (std::vector<std::pair<std::string, std::string>>{{"level", "2"}, {"files", "x"}, {"files", "y"}}));
}

TEST(ResultEntries, EmptyPlainArgumentHasANumberOfItsOwn) {
    quen_3_1::App app("prog");
    int level = 0;
    std::vector<std::string> words;
    app.option("level", level, "How much.");
    app.positional("words", words, "What.");
    quen_3_1::Result const result = parseLine(app, {"--level=2", "", "w"});
    ASSERT_EQ(result.exitCode(), 0) << result.message();
    EXPECT_EQ(inIncreasingOrder(result),
              (std::vector<std::pair<std::string, std::string>>{{"level", "2"}, {"words", ""}, {"words", "w"}}));
}

}  // namespace
