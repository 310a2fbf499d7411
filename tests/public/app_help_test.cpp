// --help, --version and the error lines, and where exit() writes them.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "support/app_harness.h"
#include "support/capture.h"

using quen_test::parseLine;

namespace {

class Qsync : public testing::Test {
protected:
    Qsync() {
        app.version("1.4.2").epilog("Report problems to the keeper.");
        app.option("jobs,j", jobs, "Copies at once.").range(1, 64);
        app.option("mode", mode, "How to copy.").allow({"fast", "mirror", "safe"});
        app.option("verbose,v", verbose, "Say more.");
        app.option("log-file", logFile, "Where to log.");
        app.option("secret", secret, "Not shown.").hidden();
        app.positional("files", files, "What to copy.").required();
    }
    quen_3_1::App app{"qsync", "Copy a folder tree to a backup place."};
    int jobs = 4;
    std::string mode = "fast";
    bool verbose = false;
    std::string logFile;
    std::string secret;
    std::vector<std::string> files;
};

TEST_F(Qsync, HelpHasUsageAboutOptionsArgumentsAndEpilog) {
    quen_3_1::Result const result = parseLine(app, {"--help"});
    EXPECT_TRUE(result.done());
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.message(),
              "Usage: qsync [options] <files>...\n\n"
              "Copy a folder tree to a backup place.\n\n"
              "Options:\n"
              "-j, -jobs=<integer> (4)       Copies at once.\n"
              "-mode=fast | mirror | safe (fast)\n"
              "                              How to copy.\n"
              "-v, -verbose | -no-verbose (default)\n"
              "                              Say more.\n"
              "-log-file=<string>            Where to log.\n"
              "-h, -help                     Print this help and exit.\n"
              "-version                      Print the version and exit.\n"
              "-completion=bash | zsh | fish Print the completion script for this shell and\n"
              "                              exit.\n\n"
              "Arguments:\n"
              "  <files>...                  What to copy.\n\n"
              "Report problems to the keeper.\n");
}

TEST_F(Qsync, HelpWinsOverMissingRequiredValues) { EXPECT_EQ(parseLine(app, {"-h"}).exitCode(), 0); }

TEST_F(Qsync, VersionLine) {
    quen_3_1::Result const result = parseLine(app, {"--version"});
    EXPECT_TRUE(result.done());
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.message(), "qsync 1.4.2\n");
}

TEST_F(Qsync, HelpAndVersionGoToStandardOutput) {
    quen_test::Outputs const written = quen_test::outputsOf([&] { EXPECT_EQ(parseLine(app, {"--vers"}).exit(), 0); });
    EXPECT_EQ(written.out, "qsync 1.4.2\n");
    EXPECT_EQ(written.err, "");
}

TEST_F(Qsync, UnknownOptionGetsSuggestions) {
    quen_3_1::Result const result = parseLine(app, {"--lgo-file=x", "a"});
    EXPECT_EQ(result.exitCode(), 2);
    EXPECT_EQ(result.message(),
              "qsync: error: Unknown option: --lgo-file=x\n"
              "Did you mean '--log-file'?\n"
              "Usage: qsync [options] <files>...\n"
              "Try 'qsync --help' for more information.\n");
}

TEST_F(Qsync, AmbiguousOptionGetsSuggestions) {
    EXPECT_EQ(parseLine(app, {"--ver", "a"}).message(),
              "qsync: error: Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version'\n"
              "Did you mean '--verbose' or '--version'?\n"
              "Usage: qsync [options] <files>...\n"
              "Try 'qsync --help' for more information.\n");
}

TEST_F(Qsync, TypoOfHelpIsSuggestedThoughNoArgumentNamesIt) {
    EXPECT_EQ(parseLine(app, {"--hepl", "a"}).message(),
              "qsync: error: Unknown option: --hepl\n"
              "Did you mean '--help'?\n"
              "Usage: qsync [options] <files>...\n"
              "Try 'qsync --help' for more information.\n");
}

TEST_F(Qsync, OwnOptionsAnsweredByAbbreviation) {
    EXPECT_EQ(parseLine(app, {"--he"}).message().substr(0, 6), "Usage:");
    EXPECT_EQ(parseLine(app, {"-he="}).message().substr(0, 6), "Usage:");
    EXPECT_EQ(parseLine(app, {"-vers", "a"}).message(), "qsync 1.4.2\n");
    EXPECT_EQ(parseLine(app, {"--comp=zsh"}).message(), parseLine(app, {"--completion", "zsh"}).message());
    EXPECT_EQ(parseLine(app, {"--comp=tcsh"}).message(),
              "qsync: error: Value validation problem in argument '--comp=tcsh': Option 'completion' does not allow "
              "value 'tcsh'. Possible values follows: 'bash', 'zsh', 'fish'\n"
              "Usage: qsync [options] <files>...\n"
              "Try 'qsync --help' for more information.\n");
}

TEST_F(Qsync, AbbreviationOfTheArgumentCollectorTakesAPlainArgument) {
    quen_3_1::Result const result = parseLine(app, {"--q-a-a=x", "-v"});
    EXPECT_FALSE(result.done()) << result.message();
    EXPECT_EQ(files, std::vector<std::string>{"x"});
    EXPECT_TRUE(verbose);
}

TEST_F(Qsync, ErrorsGoToStandardErrorWithCodeTwo) {
    quen_test::Outputs const written = quen_test::outputsOf([&] {
        EXPECT_EQ(parseLine(app, {"--jobs=99", "a"}).exit(), 2);
    });
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(written.err,
              "qsync: error: Option 'jobs' does not take '99': the value must be from 1 to 64\n"
              "Usage: qsync [options] <files>...\n"
              "Try 'qsync --help' for more information.\n");
}

TEST_F(Qsync, SuccessIsNotDone) {
    quen_3_1::Result const result = parseLine(app, {"a"});
    EXPECT_FALSE(result.done());
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(result.message(), "");
}

// The same description wraps the same way under "Options:" and "Arguments:".
TEST(HelpArguments, LongDescriptionsWrapLikeOptionDescriptions) {
    quen_3_1::App app("prog");
    std::string mode;
    std::string source;
    std::vector<std::string> destinations;
    std::string const longHelp =
        "Where the photos come from: a card, a camera or a folder that an earlier import left behind.";
    app.option("mode", mode, longHelp);
    app.positional("source", source, longHelp);
    app.positional("destinations-with-a-long-name", destinations,
                   "Albums, each one named by its path below the shelf: "
                   "holidays/2026/a-name-that-is-much-too-long-for-one-line-of-the-column.");
    EXPECT_EQ(parseLine(app, {"--help"}).message(),
              "Usage: prog [options] [<source>] [<destinations-with-a-long-name>...]\n\n"
              "Options:\n"
              "-mode=<string>                Where the photos come from: a card, a camera or a\n"
              "                              folder that an earlier import left behind.\n"
              "-h, -help                     Print this help and exit.\n"
              "-completion=bash | zsh | fish Print the completion script for this shell and\n"
              "                              exit.\n\n"
              "Arguments:\n"
              "  [<source>]                  Where the photos come from: a card, a camera or a\n"
              "                              folder that an earlier import left behind.\n"
              "  [<destinations-with-a-long-name>...]\n"
              "                              Albums, each one named by its path below the\n"
              "                              shelf:\n"
              "                              holidays/2026/a-name-that-is-much-too-long-for-on\n"
              "                              e-line-of-the-column.\n\n");
}

TEST(HelpOptionsFile, ListedInDeclarationOrder) {
    quen_3_1::App app("prog");
    int jobs = 2;
    bool quiet = false;
    app.option("jobs", jobs, "Workers.");
    app.optionsFile("config,c", "Read options from this file.");
    app.option("quiet", quiet, "Say less.");
    EXPECT_EQ(parseLine(app, {"--help"}).message(),
              "Usage: prog [options]\n\n"
              "Options:\n"
              "-jobs=<integer> (2)           Workers.\n"
              "-c, -config=<string>          Read options from this file.\n"
              "-quiet | -no-quiet (default)  Say less.\n"
              "-h, -help                     Print this help and exit.\n"
              "-completion=bash | zsh | fish Print the completion script for this shell and\n"
              "                              exit.\n\n");
}

// A help text handed over as a pointer is the App's own copy: the host's text may go at once.
TEST(HelpTexts, PointerTextIsCopied) {
    quen_3_1::App app("prog");
    int jobs = 2;
    std::string source;
    {
        std::string text = "Workers.";
        app.option("jobs", jobs, text.c_str());
        text.assign("Changed after the declaration, then gone.");
    }
    app.positional("source", source, std::string("What to read."));
    EXPECT_EQ(parseLine(app, {"--help"}).message(),
              "Usage: prog [options] [<source>]\n\n"
              "Options:\n"
              "-jobs=<integer> (2)           Workers.\n"
              "-h, -help                     Print this help and exit.\n"
              "-completion=bash | zsh | fish Print the completion script for this shell and\n"
              "                              exit.\n\n"
              "Arguments:\n"
              "  [<source>]                  What to read.\n\n");
}

TEST(HelpTexts, NullTextIsAnEmptyOne) {
    quen_3_1::App empty("prog");
    quen_3_1::App null("prog");
    bool quiet = false;
    std::string source;
    empty.option("quiet", quiet, std::string());
    empty.positional("source", source, std::string());
    null.option("quiet", quiet, static_cast<char const*>(nullptr));
    null.positional("source", source, static_cast<char const*>(nullptr));
    std::string const help = parseLine(empty, {"--help"}).message();
    EXPECT_EQ(parseLine(null, {"--help"}).message(), help);
    EXPECT_NE(help.find("[<source>]"), std::string::npos);
}

TEST(HelpNames, OwnOptionNamedHKeepsItsName) {
    quen_3_1::App app("prog");
    std::string host;
    app.option("host,h", host, "Where.");
    EXPECT_EQ(parseLine(app, {"-h", "x"}).exitCode(), 0);
    EXPECT_EQ(host, "x");
    EXPECT_EQ(parseLine(app, {"--help"}).exitCode(), 0);
    EXPECT_TRUE(parseLine(app, {"--help"}).done());
}

TEST(HelpNames, NoVersionWithoutVersionText) {
    quen_3_1::App app("prog");
    EXPECT_EQ(parseLine(app, {"--version"}).message(),
              "prog: error: Unknown option: --version\n"
              "Usage: prog [options]\nTry 'prog --help' for more information.\n");
}

TEST(HelpUsage, OptionalPositionals) {
    quen_3_1::App app("prog");
    std::string first;
    std::vector<int> more;
    app.positional("first", first, "One.");
    app.positional("more", more, "Others.");
    EXPECT_EQ(parseLine(app, {"--help"}).message().substr(0, 43), "Usage: prog [options] [<first>] [<more>...]");
}

}  // namespace
