// Values from the command line, the environment and options files, in that
// order of precedence over the variable's default.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "support/app_harness.h"

using quen_test::errorTail;
using quen_test::parseLine;

namespace {

class Sources : public testing::Test {
protected:
    Sources() {
        app.envPrefix("QAPP_TEST");
        app.option("jobs,j", jobs, "Workers.").range(1, 64);
        app.option("mode", mode, "How.").allow({"fast", "mirror"});
        app.option("verbose", verbose, "More.");
        app.option("tag", tags, "Labels.");
        app.option("token", token, "Secret.").env("QAPP_TEST_OWN_TOKEN");
        app.optionsFile("options-file,f", "Read options from this file.");
    }
    void TearDown() override {
        for (std::string const& name : m_set) {
            unsetenv(name.c_str());
        }
        for (std::string const& path : m_files) {
            std::remove(path.c_str());
        }
    }
    void setVariable(std::string const& name, std::string const& value) {
        m_set.push_back(name);
        setenv(name.c_str(), value.c_str(), 1);
    }
    std::string writeFile(std::string const& text) {
        std::string path = testing::TempDir() + "quen_app_options_" + std::to_string(getpid()) + "_" +
                           std::to_string(m_files.size()) + ".txt";
        std::ofstream(path) << text;
        m_files.push_back(path);
        return path;
    }

    quen_3_1::App app{"prog"};
    int jobs = 4;
    std::string mode = "fast";
    bool verbose = false;
    std::vector<std::string> tags;
    std::string token;

private:
    std::vector<std::string> m_set;
    std::vector<std::string> m_files;
};

TEST_F(Sources, EnvironmentOverDefault) {
    setVariable("QAPP_TEST_JOBS", "7");
    setVariable("QAPP_TEST_VERBOSE", "yes");
    setVariable("QAPP_TEST_OWN_TOKEN", "abc");
    quen_3_1::Result const result = parseLine(app, {});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(jobs, 7);
    EXPECT_TRUE(verbose);
    EXPECT_EQ(token, "abc");
    EXPECT_TRUE(result.given("jobs"));
    ASSERT_EQ(result.entries("jobs").size(), 1u);
    EXPECT_EQ(result.entries("jobs")[0].source, quen_3_1::Source::Environment);
}

TEST_F(Sources, CommandLineOverEnvironment) {
    setVariable("QAPP_TEST_JOBS", "7");
    EXPECT_EQ(parseLine(app, {"-j", "2"}).exitCode(), 0);
    EXPECT_EQ(jobs, 2);
}

TEST_F(Sources, EnvironmentValueAbbreviatedLikeTyped) {
    setVariable("QAPP_TEST_MODE", "mi");
    EXPECT_EQ(parseLine(app, {}).exitCode(), 0);
    EXPECT_EQ(mode, "mirror");
}

TEST_F(Sources, ErrorInVariableNamesTheVariableNotAnArgument) {
    setVariable("QAPP_TEST_JOBS", "7x");
    EXPECT_EQ(parseLine(app, {}).message(),
              "prog: error: Environment variable 'QAPP_TEST_JOBS': Option 'jobs' does not take '7x': a whole "
              "integer is required\n" +
                  errorTail());
    setVariable("QAPP_TEST_JOBS", "3");
    setVariable("QAPP_TEST_MODE", "slow");
    EXPECT_EQ(parseLine(app, {}).message(),
              "prog: error: Environment variable 'QAPP_TEST_MODE': Option 'mode' does not allow value 'slow'. "
              "Possible values follows: 'fast', 'mirror'\n" +
                  errorTail());
    EXPECT_EQ(jobs, 4);
}

TEST_F(Sources, FlagVariableMustBeABoolean) {
    setVariable("QAPP_TEST_VERBOSE", "maybe");
    EXPECT_EQ(parseLine(app, {}).message(),
              "prog: error: Environment variable 'QAPP_TEST_VERBOSE': 'maybe' is not a boolean (1, 0, true, false, "
              "yes, no, on, off)\n" +
                  errorTail());
    setVariable("QAPP_TEST_VERBOSE", "off");
    verbose = true;
    EXPECT_EQ(parseLine(app, {}).exitCode(), 0);
    EXPECT_FALSE(verbose);
}

TEST_F(Sources, FileBelowEnvironmentAndCommandLine) {
    std::string const path = writeFile("# settings\n--jobs=9\n--mode\nmirror\n--tag=a\n  --tag=b\n");
    setVariable("QAPP_TEST_MODE", "fast");
    quen_3_1::Result const result = parseLine(app, {"-f", path, "--tag=c"});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(jobs, 9);
    EXPECT_EQ(mode, "fast");
    EXPECT_EQ(tags, (std::vector<std::string>{"c"}));
    EXPECT_EQ(result.entries("jobs")[0].source, quen_3_1::Source::File);
}

TEST_F(Sources, ErrorInFileNamesFileAndLine) {
    std::string const path = writeFile("--jobs=9\n\n; comment\n--mode\nslow\n");
    EXPECT_EQ(parseLine(app, {"--options-file=" + path}).message(),
              "prog: error: Options file '" + path +
                  "', line 5: Value validation problem in argument '--mode': Option 'mode' does not allow value "
                  "'slow'. Possible values follows: 'fast', 'mirror'\n" +
                  errorTail());
    std::string const second = writeFile("--jobs=9\n--jobs=0\n");
    EXPECT_EQ(parseLine(app, {"--options-file=" + second}).message(),
              "prog: error: Options file '" + second +
                  "', line 2: Option 'jobs' does not take '0': the value must be from 1 to 64\n" + errorTail());
    std::string const third = writeFile("--jobs=9\n--nothing\n");
    EXPECT_EQ(parseLine(app, {"--options-file=" + third}).message(),
              "prog: error: Options file '" + third + "', line 2: Unknown option: --nothing\n" + errorTail());
}

// A file that names --completion is read by a parser that knows the shells: its
// values land where they belong, and an unknown shell is refused at its line.
TEST_F(Sources, FileNamingCompletionIsReadWhole) {
    std::string const path = writeFile("--jobs=9\n--completion=bash\n--mode\nmirror\n");
    quen_3_1::Result const result = parseLine(app, {"--tag=c", "-f", path});
    EXPECT_EQ(result.exitCode(), 0);
    EXPECT_EQ(jobs, 9);
    EXPECT_EQ(mode, "mirror");
    EXPECT_EQ(tags, (std::vector<std::string>{"c"}));
    std::string const wrong = writeFile("--jobs=9\n--completion=tcsh\n");
    EXPECT_EQ(parseLine(app, {"-f", wrong}).message(),
              "prog: error: Options file '" + wrong +
                  "', line 2: Value validation problem in argument '--completion=tcsh': Option 'completion' does not "
                  "allow value 'tcsh'. Possible values follows: 'bash', 'zsh', 'fish'\n" +
                  errorTail());
}

TEST_F(Sources, UnreadableFile) {
    std::string const path = testing::TempDir() + "quen_app_no_such_file.txt";
    EXPECT_EQ(parseLine(app, {"-f", path}).message(),
              "prog: error: Can not read options file '" + path + "'\n" + errorTail());
}

// A path may name a device that never ends: the file is read no further than its limit.
TEST_F(Sources, FileLargerThanTheLimitIsRefused) {
    std::size_t const limit = std::size_t{16} << 20U;
    std::string const setting = "--jobs=9\n";
    // One long comment line fills the file up to the limit exactly.
    std::string text = "#" + std::string(limit - setting.size() - 2, 'x') + "\n" + setting;
    ASSERT_EQ(text.size(), limit);
    std::string const largest = writeFile(text);
    EXPECT_EQ(parseLine(app, {"-f", largest}).exitCode(), 0);
    EXPECT_EQ(jobs, 9);
    std::string const path = writeFile(text + "\n");
    EXPECT_EQ(parseLine(app, {"-f", path}).message(),
              "prog: error: Options file '" + path + "' holds more than 16 MiB\n" + errorTail());
}

TEST_F(Sources, EndlessDeviceIsRefused) {
    EXPECT_EQ(parseLine(app, {"-f", "/dev/zero"}).message(),
              "prog: error: Options file '/dev/zero' holds more than 16 MiB\n" + errorTail());
}

TEST_F(Sources, DirectoryIsUnreadable) {
    std::string const path = testing::TempDir();
    EXPECT_EQ(parseLine(app, {"-f", path}).message(),
              "prog: error: Can not read options file '" + path + "'\n" + errorTail());
}

// The same error text at an earlier line (an option still waiting for its value there)
// does not move the error to that line.
TEST_F(Sources, ErrorAtTheLastLineStaysThere) {
    std::string const path = writeFile("--mode\nmirror\n--mode\n");
    quen_3_1::Result const alone = parseLine(app, {"--mode"});
    std::string const error = alone.message().substr(0, alone.message().find('\n'));
    ASSERT_EQ(error.rfind("prog: error: ", 0), 0U);
    EXPECT_EQ(parseLine(app, {"-f", path}).message(),
              "prog: error: Options file '" + path + "', line 3: " + error.substr(std::string("prog: error: ").size()) +
                  "\n" + errorTail());
}

// Finding the line of an error parses the file a few times, not once per line: every parse
// takes sequence numbers from the process's one range, so a long file failing at its end
// would otherwise cost time and numbers by the square of its length.
TEST_F(Sources, ErrorAtTheEndOfALongFileTakesFewParses) {
    std::size_t const lines = 3000;
    std::string text;
    for (std::size_t i = 0; i < lines; ++i) {
        text += "--jobs=9\n";
    }
    std::string const path = writeFile(text + "--nothing\n");
    auto const sequenceOfJobs = [this] {
        quen_3_1::Result const result = parseLine(app, {"--jobs=5"});
        return result.entries("jobs").at(0).sequence;
    };
    std::int32_t const before = sequenceOfJobs();
    EXPECT_EQ(parseLine(app, {"-f", path}).message(), "prog: error: Options file '" + path + "', line " +
                                                          std::to_string(lines + 1) + ": Unknown option: --nothing\n" +
                                                          errorTail());
    std::int32_t const after = sequenceOfJobs();
    // Each line takes two numbers (the option and its value) per parse; 40 parses of the whole
    // file are far more than halving needs and far fewer than one parse per line.
    EXPECT_LT(after - before, static_cast<std::int32_t>(40 * 2 * (lines + 1)));
}

TEST_F(Sources, PrefixWithTrailingUnderscore) {
    quen_3_1::App other("prog");
    int level = 0;
    other.envPrefix("QAPP_TEST_").option("log-level", level, "Depth.");
    setVariable("QAPP_TEST_LOG_LEVEL", "3");
    EXPECT_EQ(parseLine(other, {}).exitCode(), 0);
    EXPECT_EQ(level, 3);
}

}  // namespace
