// Mistakes in a program's declarations: refused at compile time where the
// type says so, otherwise reported once by parse, never printed.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/app_harness.h"
#include "support/capture.h"

using quen_test::parseLine;

namespace {

template <class O, class A, class = void>
struct CanAllow : std::false_type {};
template <class O, class A>
struct CanAllow<O, A, std::void_t<decltype(std::declval<O&>().allow(std::declval<A>()))>> : std::true_type {};

template <class O, class V, class = void>
struct CanRange : std::false_type {};
template <class O, class V>
struct CanRange<O, V, std::void_t<decltype(std::declval<O&>().range(std::declval<V>(), std::declval<V>()))>>
    : std::true_type {};

template <class T, class = void>
struct CanBind : std::false_type {};
template <class T>
struct CanBind<T, std::void_t<decltype(std::declval<quen_3_1::App&>().option("x", std::declval<T&>(), ""))>>
    : std::true_type {};

TEST(DeclarationKinds, AllowedValuesHaveTheOptionType) {
    static_assert(CanAllow<quen_3_1::Option<int>, std::vector<int>>::value);
    static_assert(!CanAllow<quen_3_1::Option<int>, std::vector<std::string>>::value);
    static_assert(CanAllow<quen_3_1::Option<std::vector<std::string>>, std::vector<std::string>>::value);
    static_assert(!CanAllow<quen_3_1::Option<std::optional<double>>, std::vector<std::string>>::value);
    SUCCEED();
}

TEST(DeclarationKinds, RangeOnlyForNumbers) {
    static_assert(CanRange<quen_3_1::Option<int>, int>::value);
    static_assert(CanRange<quen_3_1::Option<std::vector<double>>, double>::value);
    static_assert(!CanRange<quen_3_1::Option<std::string>, std::string>::value);
    static_assert(!CanRange<quen_3_1::Option<bool>, bool>::value);
    SUCCEED();
}

TEST(DeclarationKinds, DefaultIsTheVariableSoItHasTheOptionType) {
    static_assert(CanBind<int>::value);
    static_assert(CanBind<std::optional<std::string>>::value);
    static_assert(!CanBind<char const*>::value);
    SUCCEED();
}

// Declares through `declare`, then checks that parse reports `expected` with code 70 and nothing is printed.
template <class Declare>
void expectMistake(Declare declare, std::string const& expected) {
    quen_test::Outputs const written = quen_test::outputsOf([&] {
        quen_3_1::App app("prog");
        declare(app);
        quen_3_1::Result const result = parseLine(app, {"--help"});
        EXPECT_TRUE(result.done());
        EXPECT_EQ(result.exitCode(), 70);
        EXPECT_EQ(result.message(), "prog: error: bad declaration: " + expected + "\n");
    });
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(written.err, "");
}

int g_value = 0;
std::vector<std::string> g_texts;
std::string g_text;

TEST(DeclarationMistakes, NameDeclaredTwice) {
    expectMistake(
        [](quen_3_1::App& app) {
            app.option("verbose,v", g_value, "A.");
            app.option("v", g_value, "B.").required();
        },
        "the name 'v' is declared twice");
}

TEST(DeclarationMistakes, ReservedName) {
    expectMistake([](quen_3_1::App& app) { app.option("quen-app-arguments", g_text, "A."); },
                  "the name 'quen-app-arguments' is reserved for the plain arguments");
}

TEST(DeclarationMistakes, FlagNegationClashes) {
    bool flag = false;
    expectMistake(
        [&](quen_3_1::App& app) {
            app.option("debug", flag, "A.");
            app.option("no-debug", g_text, "B.");
        },
        "the name 'no-debug' is declared twice");
}

TEST(DeclarationMistakes, EmptyName) {
    std::string const rules =
        "' is malformed (up to three comma-separated names, none empty, none beginning with '-' or holding '=' or "
        "a blank, a third one of at most two characters)";
    expectMistake([](quen_3_1::App& app) { app.option("", g_value, "A."); }, "the name list '" + rules);
    expectMistake([](quen_3_1::App& app) { app.option("a,,b", g_value, "A."); }, "the name list 'a,,b" + rules);
    expectMistake([](quen_3_1::App& app) { app.option("--jobs", g_value, "A."); }, "the name list '--jobs" + rules);
    expectMistake([](quen_3_1::App& app) { app.option("long,second,xyz", g_value, "A."); },
                  "the name list 'long,second,xyz" + rules);
}

// Every rule holds wherever in the list it is broken: at its end, inside a name, in a later name.
TEST(DeclarationMistakes, MalformedAnywhereInTheList) {
    std::string const rules =
        "' is malformed (up to three comma-separated names, none empty, none beginning with '-' or holding '=' or "
        "a blank, a third one of at most two characters)";
    for (std::string const names : {"a,", ",a", "a=b", "a,b c", "jobs,j\t", "x,-y", "a,b,c,d", "a\rb"}) {
        std::string expected = "the name list '";
        expected.append(names).append(rules);
        expectMistake([&](quen_3_1::App& app) { app.option(names, g_value, "A."); }, expected);
    }
}

// Long names are read eight characters at a time: a refused character is found in every place.
TEST(DeclarationMistakes, MalformedLongNames) {
    std::string const rules =
        "' is malformed (up to three comma-separated names, none empty, none beginning with '-' or holding '=' or "
        "a blank, a third one of at most two characters)";
    for (std::string const names : {"abcdefgh,", "abcdefg,", "abcdefghi=x", "verbose level", "log-file\n", "-log-file",
                                    "one,two,three-long", "abcdefghijklmnop\v", "a\tbcdefghijklmn"}) {
        std::string expected = "the name list '";
        expected.append(names).append(rules);
        expectMistake([&](quen_3_1::App& app) { app.option(names, g_value, "A."); }, expected);
    }
}

TEST(DeclarationMistakes, LongNamesWithAShortOneAreAccepted) {
    quen_3_1::App app("prog");
    int jobs = 0;
    int level = 0;
    app.option("parallel-jobs,j", jobs, "Workers.");
    app.option("verbosity-level", level, "Detail.");
    quen_3_1::Result const result = parseLine(app, {"-j", "3", "--verbosity-level=2"});
    EXPECT_EQ(result.exitCode(), 0) << result.message();
    EXPECT_EQ(jobs, 3);
    EXPECT_EQ(level, 2);
    EXPECT_EQ(result.count("parallel-jobs"), 1U);
}

TEST(DeclarationMistakes, ThreeNamesWithAShortThirdAreAccepted) {
    quen_3_1::App app("prog");
    int jobs = 0;
    app.option("jobs,j,jb", jobs, "Workers.");
    quen_3_1::Result const result = parseLine(app, {"--jb=3"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.message(), "");
    EXPECT_EQ(jobs, 3);
}

TEST(DeclarationMistakes, PositionalAfterVectorPositional) {
    expectMistake(
        [](quen_3_1::App& app) {
            app.positional("files", g_texts, "A.");
            app.positional("last", g_text, "B.");
        },
        "the positional 'last' follows a positional that takes all the remaining arguments");
}

TEST(DeclarationMistakes, UnknownNameInRelation) {
    expectMistake([](quen_3_1::App& app) { app.option("a", g_value, "A.").needs("b"); }, "no option is named 'b'");
    expectMistake([](quen_3_1::App& app) { app.exclusive({"x", "y"}); }, "no option is named 'x'");
}

TEST(DeclarationMistakes, EmptyRange) {
    expectMistake([](quen_3_1::App& app) { app.option("a", g_value, "A.").range(5, 1); },
                  "the range of option 'a' has its lowest end above its highest");
}

TEST(DeclarationMistakes, MistakeInsideACommand) {
    expectMistake(
        [](quen_3_1::App& app) {
            quen_3_1::App& sub = app.command("sub", "Sub.");
            sub.option("x", g_value, "A.");
            sub.option("x", g_value, "B.");
        },
        "the name 'x' is declared twice");
}

TEST(DeclarationMistakes, CommandsAndPositionalsTogether) {
    expectMistake(
        [](quen_3_1::App& app) {
            app.command("sub", "Sub.");
            app.positional("file", g_text, "A.");
        },
        "'prog' has both commands and positionals; the first plain argument can be only one of them");
}

TEST(DeclarationMistakes, FirstMistakeIsReported) {
    expectMistake(
        [](quen_3_1::App& app) {
            app.option("a", g_value, "A.");
            app.option("a", g_value, "B.");
            app.option("", g_value, "C.");
        },
        "the name 'a' is declared twice");
}

}  // namespace
