// --completion=SHELL prints a script of the whole program; each script is
// run in its shell, which must offer the options and commands of the level
// typed so far, names taken literally however odd.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>
#include <stdio.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "support/app_harness.h"

using quen_test::parseLine;

namespace {

bool hasShell(std::string const& shell) {
    return std::system(("command -v " + shell + " >/dev/null 2>&1").c_str()) == 0;
}

// What `command` writes to standard output.
std::string run(std::string const& command) {
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return "popen failed";
    }
    char buffer[256];
    std::size_t read = 0;
    while ((read = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) {
        out.append(buffer, read);
    }
    pclose(pipe);
    return out;
}

class Completion : public testing::Test {
protected:
    Completion() {
        app.option("jobs,j", jobs, "Workers.");
        app.option("verbose", verbose, "More.");
        app.option("secret", secret, "Hidden.").hidden();
        app.option("odd$(touch${IFS}pwned)'x", odd, "Odd name.");
        quen_3_1::App& remote = app.command("remote", "Remotes.");
        remote.option("force", force, "Overwrite.");
        remote.command("add", "Add one.");
        remote.command("it's", "Quoted.");
        app.command("status", "Show.");
    }
    void TearDown() override {
        std::remove(m_script.c_str());
        std::remove((testing::TempDir() + "pwned").c_str());
    }
    // The program's script for `shell`, written to a file.
    std::string script(std::string const& shell) {
        quen_3_1::Result const result = parseLine(app, {"--completion=" + shell});
        EXPECT_TRUE(result.done());
        EXPECT_EQ(result.exitCode(), 0);
        m_script = testing::TempDir() + "quen_app_completion_" + std::to_string(getpid()) + "." + shell;
        std::ofstream(m_script) << result.message();
        return m_script;
    }

    quen_3_1::App app{"prog"};
    int jobs = 1;
    bool verbose = false;
    bool force = false;
    std::string secret;
    std::string odd;

private:
    std::string m_script;
};

TEST_F(Completion, UnknownShellIsRefused) { EXPECT_EQ(parseLine(app, {"--completion=tcsh"}).exitCode(), 2); }

// However the option is written, and wherever it comes among the arguments, its
// shells are checked by the library as for any option with allowed values.
TEST(CompletionShells, RefusalNamesTheArgumentAndTheShells) {
    quen_3_1::App app("prog");
    int jobs = 1;
    app.option("jobs", jobs, "Workers.");
    std::string const shells = "Possible values follows: 'bash', 'zsh', 'fish'\n";
    std::string const tail = "Usage: prog [options]\nTry 'prog --help' for more information.\n";
    EXPECT_EQ(parseLine(app, {"--jobs=2", "-comp", "tcsh"}).message(),
              "prog: error: Value validation problem in argument '-comp': Option 'completion' does not allow value "
              "'tcsh'. " +
                  shells + tail);
    EXPECT_EQ(parseLine(app, {"--completion=tcsh", "--nothing"}).message(),
              "prog: error: Value validation problem in argument '--completion=tcsh': Option 'completion' does not "
              "allow value 'tcsh'. " +
                  shells + tail);
    EXPECT_EQ(jobs, 1);
}

TEST(CompletionShells, AbbreviatedShellIsTakenWhole) {
    quen_3_1::App app("prog");
    quen_3_1::Result const whole = parseLine(app, {"--completion=fish"});
    quen_3_1::Result const shortened = parseLine(app, {"--co", "fi"});
    EXPECT_EQ(shortened.exitCode(), 0);
    EXPECT_TRUE(shortened.done());
    EXPECT_EQ(shortened.message(), whole.message());
    EXPECT_NE(whole.message().find("complete"), std::string::npos);
}

TEST_F(Completion, Bash) {
    std::string const file = script("bash");
    auto const offered = [&](std::string const& words, int index) {
        return run("cd " + testing::TempDir() + " && bash --norc --noprofile -c 'source " + file + "; COMP_WORDS=(" +
                   words + "); COMP_CWORD=" + std::to_string(index) +
                   "; _quen_app_prog; printf \"%s|\" \"${COMPREPLY[@]}\"'");
    };
    EXPECT_EQ(offered("prog \"\"", 1),
              "--jobs|-j|--verbose|--no-verbose|--odd$(touch${IFS}pwned)'x|--help|--completion|remote|status|");
    EXPECT_EQ(offered("prog --v", 1), "--verbose|");
    EXPECT_EQ(offered("prog -j 3 remote \"\"", 4), "--force|--no-force|--help|add|it's|");
    EXPECT_EQ(offered("prog remote it", 2), "it's|");
    EXPECT_EQ(run("cd " + testing::TempDir() + " && ls pwned 2>/dev/null"), "");
}

TEST_F(Completion, Zsh) {
    if (!hasShell("zsh")) {
        GTEST_SKIP() << "zsh is not installed";
    }
    std::string const file = script("zsh");
    auto const offered = [&](std::string const& words, int current) {
        return run("cd " + testing::TempDir() +
                   " && zsh -f -c 'compdef() { :; }; compadd() { shift; printf \"%s|\" \"$@\"; }; source " + file +
                   "; words=(" + words + "); CURRENT=" + std::to_string(current) + "; _quen_app_prog'");
    };
    EXPECT_EQ(offered("prog \"\"", 2),
              "--jobs|-j|--verbose|--no-verbose|--odd$(touch${IFS}pwned)'x|--help|--completion|remote|status|");
    EXPECT_EQ(offered("prog remote \"\"", 3), "--force|--no-force|--help|add|it's|");
    EXPECT_EQ(run("cd " + testing::TempDir() + " && ls pwned 2>/dev/null"), "");
}

TEST_F(Completion, Fish) {
    if (!hasShell("fish")) {
        GTEST_SKIP() << "fish is not installed";
    }
    std::string const file = script("fish");
    auto const offered = [&](std::string const& line) {
        return run("cd " + testing::TempDir() + " && fish --no-config -c 'source " + file + "; complete -C \"" + line +
                   "\" | string replace -r \"\\t.*\" \"\" | string join \"|\"'");
    };
    // fish sorts what it offers.
    EXPECT_EQ(offered("prog remote "), "add|it's|--force|--help|--no-force\n");
    EXPECT_EQ(offered("prog --ve"), "--verbose\n");
    EXPECT_EQ(offered("prog remote it"), "it's\n");
    EXPECT_EQ(run("cd " + testing::TempDir() + " && ls pwned 2>/dev/null"), "");
}

}  // namespace
