// Whatever a user types, parse answers with code 0 or 2 and a message,
// without throwing, printing or touching the variables on failure.
#include <gtest/gtest.h>
#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "support/app_harness.h"
#include "support/capture.h"

using quen_test::parseLine;

namespace {

class AnyInput : public testing::Test {
protected:
    AnyInput() {
        app.option("jobs,j", jobs, "Workers.").range(1, 8);
        app.option("mode", mode, "How.").allow({"fast", "safe"});
        app.option("verbose,v", verbose, "More.");
        app.option("tag", tags, "Labels.").split(',');
        app.positional("files", files, "What.");
        app.optionsFile("options-file", "More options.");
        app.command("never", "Not reachable: this App has positionals.");
    }
    quen_3_1::App app{"prog"};
    int jobs = 2;
    std::string mode = "fast";
    bool verbose = false;
    std::vector<std::string> tags;
    std::vector<std::string> files;
};

TEST_F(AnyInput, DeclarationMistakeIsReportedBeforeAnyInput) { EXPECT_EQ(parseLine(app, {"x"}).exitCode(), 70); }

TEST(AnyInputs, OddArgumentsGiveZeroOrTwo) {
    std::vector<std::vector<std::string>> const lines{{"-"},
                                                      {"--"},
                                                      {"---"},
                                                      {"="},
                                                      {"--="},
                                                      {"-=x"},
                                                      {"---jobs=3"},
                                                      {"--jobs"},
                                                      {"--jobs="},
                                                      {"--jobs", ""},
                                                      {"--jobs", "-3"},
                                                      {"--no-jobs"},
                                                      {"--verbose="},
                                                      {"--no-verbose=0"},
                                                      {"--tag=,,"},
                                                      {"--mode="},
                                                      {""},
                                                      {"", ""},
                                                      {"--", "", "-"},
                                                      {"quenoption=quenlogenable=1"},
                                                      {"--quen-app-arguments=x"},
                                                      {"--options-file"},
                                                      {"--options-file="},
                                                      {std::string(5000, 'x')},
                                                      {"--" + std::string(5000, 'j')},
                                                      {"\xff\xfe", "--mode=\xc3"},
                                                      {"-j", "8", "-j", "9"}};
    quen_test::Outputs const written = quen_test::outputsOf([&] {
        for (std::vector<std::string> const& line : lines) {
            quen_3_1::App app("prog");
            int jobs = 2;
            std::string mode = "fast";
            bool verbose = false;
            std::vector<std::string> tags;
            std::vector<std::string> files;
            app.option("jobs,j", jobs, "Workers.").range(1, 8);
            app.option("mode", mode, "How.").allow({"fast", "safe"});
            app.option("verbose,v", verbose, "More.");
            app.option("tag", tags, "Labels.").split(',');
            app.positional("files", files, "What.");
            app.optionsFile("options-file", "More options.");
            quen_3_1::Result const result = parseLine(app, line);
            EXPECT_TRUE(result.exitCode() == 0 || result.exitCode() == 2) << line.front();
            EXPECT_EQ(result.done(), result.exitCode() != 0) << line.front();
            if (result.exitCode() == 2) {
                EXPECT_EQ(result.message().compare(0, 13, "prog: error: "), 0) << result.message();
                EXPECT_EQ(jobs, 2);
            }
        }
    });
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(written.err, "");
}

// Short command lines are handed to the library from the stack, long ones otherwise: both whole.
TEST(AnyInputs, LongAndShortCommandLinesAreReadWhole) {
    for (std::size_t const count : {std::size_t{62}, std::size_t{63}, std::size_t{64}, std::size_t{200}}) {
        quen_3_1::App app("prog");
        int jobs = 0;
        std::vector<std::string> files;
        app.option("jobs,j", jobs, "Workers.");
        app.positional("files", files, "Inputs.");
        std::vector<std::string> line{"--jobs=3"};
        for (std::size_t i = 1; i < count; ++i) {
            line.push_back("f" + std::to_string(i));
        }
        quen_3_1::Result const result = parseLine(app, line);
        ASSERT_EQ(result.exitCode(), 0) << result.message();
        EXPECT_EQ(jobs, 3);
        ASSERT_EQ(files.size(), count - 1);
        EXPECT_EQ(files.back(), "f" + std::to_string(count - 1));
    }
}

TEST(AnyInputs, NullArgumentsAreEmptyTexts) {
    quen_3_1::App app("prog");
    std::vector<std::string> files;
    app.positional("files", files, "What.");
    char const* argv[] = {"prog", nullptr, "b"};
    EXPECT_EQ(app.parse(3, argv).exitCode(), 0);
    EXPECT_EQ(files, (std::vector<std::string>{"", "b"}));
    EXPECT_EQ(app.parse(0, nullptr).exitCode(), 0);
}

}  // namespace
