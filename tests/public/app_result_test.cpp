// Result: a snapshot of plain data, in command-line order, that any number
// of nested loops may read.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>
#include <quen_3_1/quen.h>

#include <string>
#include <thread>
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
TEST(ResultEntries, OptionsGivenInDeclarationOrderKeepEveryValue) {
    quen_3_1::App app("prog");
    std::vector<std::string> targets;
    int jobs = 0;
    bool quiet = false;
    app.option("target", targets, "Build these.");
    app.option("jobs", jobs, "Workers.");
    app.option("quiet", quiet, "Say less.");
    quen_3_1::Result const result = parseLine(app, {"--target=a", "--target=b", "--jobs=2", "--jobs=3"});
    ASSERT_EQ(result.exitCode(), 0);
    EXPECT_EQ(targets, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(jobs, 3);
    EXPECT_FALSE(quiet);
    EXPECT_EQ(result.count("target"), 2U);
    EXPECT_EQ(result.count("jobs"), 2U);
    EXPECT_EQ(result.count("quiet"), 0U);
    std::vector<std::string> seen;
    std::int32_t last = 0;
    for (quen_3_1::Entry const& entry : result.entries()) {
        seen.push_back(entry.name + "=" + entry.text);
        EXPECT_LT(last, entry.sequence);
        last = entry.sequence;
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"target=a", "target=b", "jobs=2", "jobs=3"}));
}

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

TEST(ResultEntries, FailedParseListsWhatItTookByName) {
    quen_3_1::App app("prog");
    std::vector<std::string> files;
    int jobs = 1;
    app.option("jobs,j", jobs, "Workers.").required();
    app.positional("files", files, "What.");
    quen_3_1::Result const result = parseLine(app, {"a", "b"});
    EXPECT_EQ(result.exitCode(), 2);
    ASSERT_EQ(result.entries().size(), 2u);
    EXPECT_EQ(result.entries()[0].name, "files");
    EXPECT_EQ(result.entries()[1].text, "b");
    EXPECT_EQ(result.count("files"), 0u);
    EXPECT_TRUE(result.entries("files").empty());
    EXPECT_TRUE(files.empty());
}

// The entries are named when first asked for; threads asking at once see one list.
TEST(ResultEntries, NamedOnceForEveryThread) {
    quen_3_1::App app("prog");
    int jobs = 1;
    std::vector<std::string> files;
    app.option("jobs,j", jobs, "Workers.");
    app.positional("files", files, "What.");
    quen_3_1::Result const result = parseLine(app, {"-j", "3", "a", "--jobs=4"});
    std::vector<quen_3_1::Entry const*> seen(4);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < seen.size(); ++t) {
        threads.emplace_back([&result, &seen, t] { seen[t] = result.entries().data(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (quen_3_1::Entry const* first : seen) {
        EXPECT_EQ(first, result.entries().data());
    }
    ASSERT_EQ(result.entries().size(), 3u);
    EXPECT_EQ(result.entries()[0].name, "jobs");
    EXPECT_EQ(result.entries()[1].name, "files");
    EXPECT_EQ(result.entries()[2].text, "4");
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

namespace {

// Names of one to twenty-four characters, each first character its own so that none
// abbreviates another; a name with any one character changed is not one of them.
TEST(ResultLookup, NamesOfEveryLengthAreFoundAndNoNameDifferingByOneCharacter) {
    std::string const tail = "bcdefghijklmnopqrstuvwxy";
    std::size_t const most = 24;
    quen_3_1::App app("prog");
    std::vector<int> values(most + 1);
    std::vector<std::string> names(most + 1);
    std::vector<std::string> line;
    for (std::size_t size = 1; size <= most; ++size) {
        names[size] = std::string(1, static_cast<char>('a' + size - 1)) + tail.substr(0, size - 1);
        app.option(names[size], values[size], "A number.");
        if (size % 2 == 1) {
            line.push_back("--" + names[size] + "=" + std::to_string(size));
        }
    }
    quen_3_1::Result const result = parseLine(app, line);
    ASSERT_EQ(result.exitCode(), 0);
    for (std::size_t size = 1; size <= most; ++size) {
        bool const odd = size % 2 == 1;
        EXPECT_EQ(result.given(names[size]), odd) << names[size];
        EXPECT_EQ(result.count(names[size]), odd ? 1U : 0U) << names[size];
        EXPECT_EQ(values[size], odd ? static_cast<int>(size) : 0) << names[size];
        for (std::size_t at = 0; at < size; ++at) {
            std::string changed = names[size];
            changed[at] = 'Z';
            EXPECT_FALSE(result.given(changed)) << changed;
            EXPECT_EQ(result.count(changed), 0U) << changed;
        }
    }
}

TEST(ResultLookup, EveryNameOfAnOptionCountsItsOccurrences) {
    quen_3_1::App app("prog");
    std::vector<int> jobs;
    app.option("jobs,j", jobs, "How many.");
    quen_3_1::Result const result = parseLine(app, {"-j", "2", "--jobs=3"});
    ASSERT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.count("jobs"), 2U);
    EXPECT_EQ(result.count("j"), 2U);
    std::vector<std::string> texts;
    for (quen_3_1::Entry const& entry : result.entries("j")) {
        EXPECT_EQ(entry.name, "jobs");
        texts.push_back(entry.text);
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"2", "3"}));
}

TEST(ResultLookup, NegatedFlagNameIsNotAnOptionName) {
    quen_3_1::App app("prog");
    bool color = true;
    app.option("color", color, "Paint.");
    quen_3_1::Result const result = parseLine(app, {"--no-color"});
    ASSERT_EQ(result.exitCode(), 0);
    EXPECT_FALSE(color);
    EXPECT_EQ(result.count("color"), 1U);
    EXPECT_FALSE(result.given("no-color"));
    EXPECT_TRUE(result.entries("no-color").empty());
    EXPECT_FALSE(result.given("paint"));
}

TEST(ResultLookup, ResultKeepsTheNamesOfItsParseWhenTheAppGrows) {
    quen_3_1::App app("prog");
    int first = 0;
    int second = 0;
    app.option("first", first, "One.");
    quen_3_1::Result const before = parseLine(app, {"--first=1"});
    app.option("second", second, "Two.");
    quen_3_1::Result const after = parseLine(app, {"--second=2"});
    EXPECT_TRUE(before.given("first"));
    EXPECT_FALSE(before.given("second"));
    EXPECT_TRUE(before.entries("second").empty());
    EXPECT_FALSE(after.given("first"));
    EXPECT_TRUE(after.given("second"));
    EXPECT_EQ(after.entries("second").size(), 1U);
}

TEST(ResultLookup, ResultOutlivesItsApp) {
    std::string name;
    quen_3_1::Result result = [&name] {
        quen_3_1::App app("prog");
        app.option("name,n", name, "Who.");
        return parseLine(app, {"-n", "ada"});
    }();
    EXPECT_EQ(name, "ada");
    EXPECT_EQ(result.count("n"), 1U);
    ASSERT_EQ(result.entries("name").size(), 1U);
    EXPECT_EQ(result.entries("name")[0].text, "ada");
}

TEST(ResultLookup, CommandAndProgramSharingANameCountTogether) {
    quen_3_1::App app("prog");
    bool verbose = false;
    bool loud = false;
    app.option("verbose,v", verbose, "Say more.");
    app.command("run", "Run it.").option("verbose", loud, "Say more while running.");
    quen_3_1::Result const result = parseLine(app, {"-v", "run", "--verbose"});
    ASSERT_EQ(result.exitCode(), 0);
    EXPECT_TRUE(verbose);
    EXPECT_TRUE(loud);
    EXPECT_EQ(result.count("verbose"), 2U);
    EXPECT_EQ(result.count("v"), 1U);
    EXPECT_EQ(result.entries("v").size(), 2U);
}

TEST(ResultLookup, ManyOptionsEachFoundByEveryName) {
    quen_3_1::App app("prog");
    std::size_t const count = 300;
    std::vector<int> values(count);
    std::vector<std::string> line;
    for (std::size_t i = 0; i < count; ++i) {
        std::string const name = "option-" + std::to_string(i);
        app.option(name + ",alias-" + std::to_string(i), values[i], "One of many.");
        if (i % 3 == 0) {
            line.push_back("--alias-" + std::to_string(i) + "=" + std::to_string(i));
        }
    }
    quen_3_1::Result const result = parseLine(app, line);
    ASSERT_EQ(result.exitCode(), 0) << result.message();
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t const expected = i % 3 == 0 ? 1 : 0;
        EXPECT_EQ(result.count("option-" + std::to_string(i)), expected) << i;
        EXPECT_EQ(result.count("alias-" + std::to_string(i)), expected) << i;
        EXPECT_EQ(values[i], i % 3 == 0 ? static_cast<int>(i) : 0) << i;
    }
    EXPECT_FALSE(result.given("option-" + std::to_string(count)));
}

}  // namespace

// Names of one to twenty letters that share their first letters: each is found as itself,
// whether it fills eight-letter words exactly or ends inside one.
TEST(ResultLookup, NamesThatDifferOnlyInLengthAreToldApart) {
    quen_3_1::App app("prog");
    std::vector<int> values(20);
    for (std::size_t length = 1; length <= values.size(); ++length) {
        app.option(std::string(length, 'k'), values[length - 1], "A value.");
    }
    quen_3_1::Result const result = parseLine(app, {"--kkkkkkkk=8", "-k", "1", "--kkkkkkkkkkkkkkkkk=17"});
    ASSERT_EQ(result.exitCode(), 0) << result.message();
    for (std::size_t length = 1; length <= values.size(); ++length) {
        bool const given = length == 1 || length == 8 || length == 17;
        EXPECT_EQ(result.given(std::string(length, 'k')), given) << length;
        EXPECT_EQ(values[length - 1], given ? static_cast<int>(length) : 0) << length;
    }
    EXPECT_FALSE(result.given(std::string(21, 'k')));
}
