#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "extras/environment_source.h"
#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "support/internal_fixture.h"

using quen_3_1::BasicParser;

namespace {

class EnvironmentSource : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        parser.option("log-file", "", tarvo2::vt_str, "g");
        parser.option("verbose", "", tarvo2::vt_bool, "g");
        parser.option("dry-run", "", tarvo2::vt_bool, "g");
        parser.option("version", "", tarvo2::vt_empty, "g");
        parser.option("level", "", tarvo2::vt_int, "g");
        parser.option("debug-dump", "", tarvo2::vt_str, "quen_hidden");
        parser.option("files", "", tarvo2::vt_str, "g")->positional();
    }

    // Reads from `variables` and remembers every name asked for.
    int read(std::string const& prefix) {
        text.clear();
        error.clear();
        asked.clear();
        return quen_3_1::environmentArguments(
            parser.storage(), prefix,
            [this](std::string const& name) -> char const* {
                asked.push_back(name);
                auto const found = variables.find(name);
                return found == variables.end() ? nullptr : found->second.c_str();
            },
            text, error);
    }

    BasicParser parser{0};
    std::map<std::string, std::string> variables;
    std::vector<std::string> asked;
    std::string text;
    std::string error;
};

TEST(EnvironmentVariableName, PrefixAndUpperCasedNameWithUnderscores) {
    EXPECT_EQ(quen_3_1::environmentVariableName("APP_", "log-file"), "APP_LOG_FILE");
    EXPECT_EQ(quen_3_1::environmentVariableName("", "x.y-Z9"), "X.Y_Z9");
    EXPECT_EQ(quen_3_1::environmentVariableName("app", "a"), "appA");
}

TEST_F(EnvironmentSource, AsksForVisibleOptionsWithValuesInRegistrationOrder) {
    EXPECT_EQ(read("APP_"), 0);
    EXPECT_EQ(asked,
              (std::vector<std::string>{"APP_LOG_FILE", "APP_VERBOSE", "APP_DRY_RUN", "APP_LEVEL", "APP_FILES"}));
    EXPECT_EQ(text, "");
}

TEST_F(EnvironmentSource, SetVariablesBecomeArgumentsOneALine) {
    variables = {{"APP_LOG_FILE", "/var/log/a b.log"}, {"APP_LEVEL", "-3"}, {"APP_FILES", "a.txt"}};
    EXPECT_EQ(read("APP_"), 0);
    EXPECT_EQ(text, "--log-file=/var/log/a b.log\n--level=-3\n--files=a.txt\n");
    EXPECT_EQ(error, "");
}

TEST_F(EnvironmentSource, BooleansOneAndZeroGiveTheNameAndItsNoForm) {
    variables = {{"APP_VERBOSE", "1"}, {"APP_DRY_RUN", "0"}};
    EXPECT_EQ(read("APP_"), 0);
    EXPECT_EQ(text, "--verbose\n--no-dry-run\n");
}

TEST_F(EnvironmentSource, OtherBooleanTextsAreHandedOnForTheParserToRefuse) {
    variables = {{"APP_VERBOSE", "yes"}};
    EXPECT_EQ(read("APP_"), 0);
    EXPECT_EQ(text, "--verbose=yes\n");
}

TEST_F(EnvironmentSource, EmptyHiddenAndValuelessVariablesAreIgnored) {
    variables = {{"APP_LOG_FILE", ""}, {"APP_DEBUG_DUMP", "x"}, {"APP_VERSION", "1"}};
    EXPECT_EQ(read("APP_"), 0);
    EXPECT_EQ(text, "");
}

TEST_F(EnvironmentSource, LineBreakInAValueIsRefused) {
    variables = {{"APP_LEVEL", "3\n--verbose"}};
    EXPECT_EQ(read("APP_"), 2);
    EXPECT_EQ(error, "Environment variable 'APP_LEVEL' holds a line break");
    variables = {{"APP_LOG_FILE", "a\r"}};
    EXPECT_EQ(read("APP_"), 2);
    EXPECT_EQ(error, "Environment variable 'APP_LOG_FILE' holds a line break");
}

TEST_F(EnvironmentSource, EmptyPrefixUsesTheBareName) {
    variables = {{"LEVEL", "7"}};
    EXPECT_EQ(read(""), 0);
    EXPECT_EQ(text, "--level=7\n");
}

}  // namespace
