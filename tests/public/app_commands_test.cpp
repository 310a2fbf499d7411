// Subcommands: chosen by the first plain argument, abbreviated part-wise,
// each with its own options, help and error lines.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "support/app_harness.h"

using quen_test::parseLine;

namespace {

class Tool : public testing::Test {
protected:
    Tool() {
        app.option("jobs,j", jobs, "Workers.");
        app.option("verbose,v", verbose, "More.");
        quen_3_1::App& sums = app.command("check-sums", "Verify the sums.");
        sums.option("deep", deep, "Read everything.");
        app.command("cherry-pick", "Take one change.").positional("change", change, "Which.").required();
        app.command("check-path", "Verify a path.");
        quen_3_1::App& remote = app.command("remote", "Manage remotes.");
        remote.command("add", "Add one.").positional("url", url, "Where.");
        remote.command("remove", "Drop one.");
    }
    quen_3_1::App app{"prog"};
    int jobs = 1;
    bool verbose = false;
    bool deep = false;
    std::string change;
    std::string url;
};

TEST_F(Tool, ProgramOptionsComeBeforeTheCommand) {
    quen_3_1::Result const result = parseLine(app, {"-j", "3", "check-sums", "--deep"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.command(), (std::vector<std::string>{"check-sums"}));
    EXPECT_EQ(jobs, 3);
    EXPECT_TRUE(deep);
    EXPECT_TRUE(result.given("deep"));
    EXPECT_TRUE(result.given("jobs"));
}

TEST_F(Tool, CommandNameAbbreviatedByParts) {
    quen_3_1::Result const result = parseLine(app, {"c-pi", "abc"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.command(), (std::vector<std::string>{"cherry-pick"}));
    EXPECT_EQ(change, "abc");
}

TEST_F(Tool, ExactPartsScoreMore) {
    EXPECT_EQ(parseLine(app, {"check-p"}).command(), (std::vector<std::string>{"check-path"}));
}

TEST_F(Tool, AmbiguousCommandListsTheCandidates) {
    EXPECT_EQ(parseLine(app, {"ch-s"}).command(), (std::vector<std::string>{"check-sums"}));
    quen_3_1::Result const result = parseLine(app, {"c-p", "abc"});
    EXPECT_EQ(result.exitCode(), 2);
    EXPECT_EQ(result.message(),
              "prog: error: Ambiguous command 'c-p', could be: 'cherry-pick', 'check-path'\n"
              "Usage: prog [options] <command> [<args>]\nTry 'prog --help' for more information.\n");
    EXPECT_TRUE(change.empty());
}

TEST_F(Tool, CommandWithOtherPartCountIsUnknown) {
    EXPECT_EQ(parseLine(app, {"c-p-x"}).message(),
              "prog: error: Unknown command 'c-p-x'\n"
              "Usage: prog [options] <command> [<args>]\nTry 'prog --help' for more information.\n");
    EXPECT_EQ(parseLine(app, {"check"}).exitCode(), 2);
}

TEST_F(Tool, MistypedCommandGetsASuggestion) {
    EXPECT_EQ(parseLine(app, {"chek-path"}).message(),
              "prog: error: Unknown command 'chek-path'\n"
              "Did you mean 'check-path'?\n"
              "Usage: prog [options] <command> [<args>]\nTry 'prog --help' for more information.\n");
    EXPECT_EQ(parseLine(app, {"remote", "rmove"}).message(),
              "prog remote: error: Unknown command 'rmove'\n"
              "Did you mean 'remove'?\n"
              "Usage: prog remote [options] <command> [<args>]\nTry 'prog remote --help' for more information.\n");
}

TEST(CommandSuggestions, NearestFirstThenDeclarationOrder) {
    quen_3_1::App app("prog");
    app.command("wave", "Wave.");
    app.command("save", "Save.");
    app.command("load", "Load.");
    EXPECT_EQ(parseLine(app, {"sve"}).message(),
              "prog: error: Unknown command 'sve'\n"
              "Did you mean 'save'?\n"
              "Usage: prog [options] <command> [<args>]\nTry 'prog --help' for more information.\n");
    EXPECT_EQ(parseLine(app, {"ave"}).message(),
              "prog: error: Unknown command 'ave'\n"
              "Did you mean 'wave' or 'save'?\n"
              "Usage: prog [options] <command> [<args>]\nTry 'prog --help' for more information.\n");
    EXPECT_EQ(parseLine(app, {"x"}).message(),
              "prog: error: Unknown command 'x'\n"
              "Usage: prog [options] <command> [<args>]\nTry 'prog --help' for more information.\n");
}

TEST(CommandSuggestions, LongTextIsComparedByItsStart) {
    quen_3_1::App app("prog");
    std::string const name(80, 's');
    app.command(name, "Long.");
    std::string const typed = std::string(63, 's') + std::string(100000, 'x');
    quen_3_1::Result const result = parseLine(app, {typed});
    EXPECT_EQ(result.message(), "prog: error: Unknown command '" + typed + "'\nDid you mean '" + name +
                                    "'?\nUsage: prog [options] <command> [<args>]\nTry 'prog --help' for more "
                                    "information.\n");
}

TEST_F(Tool, NestedCommands) {
    quen_3_1::Result const result = parseLine(app, {"-v", "rem", "add", "https://x"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.command(), (std::vector<std::string>{"remote", "add"}));
    EXPECT_EQ(url, "https://x");
    EXPECT_TRUE(verbose);
}

TEST_F(Tool, ErrorInCommandNamesTheCommand) {
    quen_3_1::Result const result = parseLine(app, {"check-sums", "--deep=1"});
    EXPECT_EQ(result.exitCode(), 2);
    EXPECT_EQ(result.message(),
              "prog check-sums: error: Option 'deep' is boolean and should be declared in form '--option' or "
              "'--no-option' in argument: '--deep=1'\n"
              "Usage: prog check-sums [options]\nTry 'prog check-sums --help' for more information.\n");
    EXPECT_FALSE(deep);
}

TEST_F(Tool, CommandOptionIsNotAProgramOption) { EXPECT_EQ(parseLine(app, {"--deep", "check-sums"}).exitCode(), 2); }

TEST_F(Tool, CommandHelp) {
    quen_3_1::Result const result = parseLine(app, {"remote", "add", "--help"});
    EXPECT_TRUE(result.done());
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.message(),
              "Usage: prog remote add [options] [<url>]\n\nAdd one.\n\nOptions:\n"
              "-h, -help                     Print this help and exit.\n\n"
              "Arguments:\n  [<url>]                     Where.\n\n");
}

TEST_F(Tool, ProgramHelpListsTheCommands) {
    quen_3_1::Result const result = parseLine(app, {"-h"});
    EXPECT_EQ(result.message(),
              "Usage: prog [options] <command> [<args>]\n\nOptions:\n"
              "-j, -jobs=<integer> (1)       Workers.\n"
              "-v, -verbose | -no-verbose (default)\n"
              "                              More.\n"
              "-h, -help                     Print this help and exit.\n"
              "-completion=bash | zsh | fish Print the completion script for this shell and\n"
              "                              exit.\n\n"
              "Commands:\n"
              "  check-sums                  Verify the sums.\n"
              "  cherry-pick                 Take one change.\n"
              "  check-path                  Verify a path.\n"
              "  remote                      Manage remotes.\n\n");
}

TEST_F(Tool, NoCommandGivenLeavesThePathEmpty) {
    quen_3_1::Result const result = parseLine(app, {"-v"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_TRUE(result.command().empty());
}

}  // namespace
