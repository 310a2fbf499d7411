// The extras as a host uses them: through <quen_3_1/extras.h> and the shared
// library only.
#include <gtest/gtest.h>
#include <quen_3_1/extras.h>
#include <quen_3_1/quen.h>
#include <stdlib.h>

#include <string>
#include <vector>

#include "support/public_fixture.h"

using quen_test::ParserHarness;
using quen_test::textsOf;

namespace {

constexpr char kPrefix[] = "QUEN_EXTRAS_TEST_";

// A parser the library did not make: the extras must refuse it.
class ForeignParser final : public quen_3_1::IParser {
public:
    void destroy() override {}
    int createResult(quen_3_1::IParseResult** /*out*/) override { return 3; }
    quen_3_1::IOption* option(char const*, char const*, tarvo2::kel_variant_type_t, char const*) override {
        return nullptr;
    }
    int parseArgsVector(int, char**, quen_3_1::IParseResult*) override { return 0; }
    int parseStream(char const*, quen_3_1::IParseResult*) override { return 0; }
    char const* getErrorDesc() override { return ""; }
    char const* getDescription(bool) override { return ""; }
    bool addHandler(quen_3_1::EventHandler*) override { return false; }
    bool removeHandler(quen_3_1::EventHandler*) override { return false; }
};

// A result the library did not make.
class ForeignResult final : public quen_3_1::IParseResult {
public:
    void destroy() override {}
    bool present(char const*, int, int) override { return false; }
    quen_3_1::Value get(char const*, int, int) override { return quen_3_1::Value{nullptr, 1, 0, {}}; }
    quen_3_1::Value next(char const*) override { return quen_3_1::Value{nullptr, 1, 0, {}}; }
    int nextPosition() override { return 0x7fffffff; }
    int getFirstArgument(char const**) override { return 1; }
    int getNextArgument(char const**) override { return 1; }
};

class Extras : public quen_test::PublicTest {
protected:
    void SetUp() override {
        PublicTest::SetUp();
        host.parser()->option("level", "Detail.", tarvo2::vt_int, "general")->defaultValue(1);
        host.parser()->option("verbose", "Tell more.", tarvo2::vt_bool, "general");
        host.parser()->option("version", "Print it.", tarvo2::vt_empty, "general");
        host.parser()->option("log-file", "Log.", tarvo2::vt_str, "general");
        host.parser()->option("debug-dump", "Internal.", tarvo2::vt_str, "quen_hidden");
    }
    void TearDown() override {
        for (std::string const& name : m_set) {
            unsetenv(name.c_str());
        }
        PublicTest::TearDown();
    }

    void setVariable(std::string const& name, std::string const& value) {
        setenv(name.c_str(), value.c_str(), 1);
        m_set.push_back(name);
    }

    std::vector<std::string> suggest(char const* typed, int max = 5) {
        std::vector<char const*> out(static_cast<std::size_t>(max > 0 ? max : 1), nullptr);
        int const count = quen_3_1::suggestNames(host.parser(), typed, out.data(), max);
        return std::vector<std::string>(out.begin(), out.begin() + count);
    }

    ParserHarness host;

private:
    std::vector<std::string> m_set;
};

// The line before the final line end.
std::string lastLine(char const* text) {
    std::string whole = text;
    whole.pop_back();
    return whole.substr(whole.rfind('\n') + 1);
}

TEST_F(Extras, CompletionScriptRegistersTheProgramInEachShell) {
    char const* bash = quen_3_1::completionScript(host.parser(), "app", "bash");
    char const* zsh = quen_3_1::completionScript(host.parser(), "app", "zsh");
    char const* fish = quen_3_1::completionScript(host.parser(), "app", "fish");
    ASSERT_NE(bash, nullptr);
    ASSERT_NE(zsh, nullptr);
    ASSERT_NE(fish, nullptr);
    EXPECT_EQ(lastLine(bash), "complete -F _quen_complete_app -- 'app'");
    EXPECT_EQ(lastLine(zsh), "compdef _quen_complete_app 'app'");
    EXPECT_EQ(lastLine(fish), "complete -c 'app' -f -k -a '(_quen_complete_app)'");
}

TEST_F(Extras, CompletionScriptIsKeptByTheParser) {
    char const* first = quen_3_1::completionScript(host.parser(), "app", "bash");
    char const* other = quen_3_1::completionScript(host.parser(), "other", "bash");
    char const* again = quen_3_1::completionScript(host.parser(), "app", "bash");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(first, again);
    EXPECT_EQ(lastLine(first), "complete -F _quen_complete_app -- 'app'");
    EXPECT_EQ(lastLine(other), "complete -F _quen_complete_other -- 'other'");
}

TEST_F(Extras, CompletionScriptLeavesOutHiddenOptions) {
    std::string const script = quen_3_1::completionScript(host.parser(), "app", "bash");
    EXPECT_NE(script.find("    local -a names=('level' 'verbose' 'no-verbose' 'version' 'log-file')\n"),
              std::string::npos);
    EXPECT_EQ(script.find("debug"), std::string::npos);
}

TEST_F(Extras, CompletionScriptIsNullForOtherShellsAndMissingArguments) {
    ForeignParser foreign;
    EXPECT_EQ(quen_3_1::completionScript(host.parser(), "app", "tcsh"), nullptr);
    EXPECT_EQ(quen_3_1::completionScript(host.parser(), "app", nullptr), nullptr);
    EXPECT_EQ(quen_3_1::completionScript(host.parser(), nullptr, "bash"), nullptr);
    EXPECT_EQ(quen_3_1::completionScript(host.parser(), "", "bash"), nullptr);
    EXPECT_EQ(quen_3_1::completionScript(nullptr, "app", "bash"), nullptr);
    EXPECT_EQ(quen_3_1::completionScript(&foreign, "app", "bash"), nullptr);
}

TEST_F(Extras, SuggestionsForTyposOfEveryKind) {
    EXPECT_EQ(suggest("--verbsoe"), (std::vector<std::string>{"verbose"}));   // swapped
    EXPECT_EQ(suggest("--vrbose"), (std::vector<std::string>{"verbose"}));    // left out
    EXPECT_EQ(suggest("--verbosse"), (std::vector<std::string>{"verbose"}));  // doubled
    EXPECT_EQ(suggest("--verbise"), (std::vector<std::string>{"verbose"}));   // wrong
    EXPECT_EQ(suggest("-lgo-fiel=x"), (std::vector<std::string>{"log-file"}));
    EXPECT_EQ(suggest("--logfile"), (std::vector<std::string>{"log-file"}));
    EXPECT_EQ(suggest("--no-verbsoe"), (std::vector<std::string>{"no-verbose"}));
}

TEST_F(Extras, SuggestionsForAnAmbiguousAbbreviationAreTheTiedNames) {
    int const code = host.parseArgs({"--ver"});
    EXPECT_EQ(code, 2);
    EXPECT_EQ(host.error(), "Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version'");
    EXPECT_EQ(suggest("--ver"), (std::vector<std::string>{"verbose", "version"}));
    EXPECT_EQ(suggest("--ver", 1), (std::vector<std::string>{"verbose"}));
}

TEST_F(Extras, SuggestionsNeverNameHiddenOptions) { EXPECT_EQ(suggest("--debug-dmup"), std::vector<std::string>{}); }

TEST_F(Extras, SuggestionsAreKeptByTheParser) {
    char const* first[1] = {nullptr};
    char const* second[1] = {nullptr};
    ASSERT_EQ(quen_3_1::suggestNames(host.parser(), "levl", first, 1), 1);
    ASSERT_EQ(quen_3_1::suggestNames(host.parser(), "lvel", second, 1), 1);
    EXPECT_EQ(first[0], second[0]);
    EXPECT_EQ(std::string(first[0]), "level");
}

TEST_F(Extras, SuggestionsAreNoneForMissingArguments) {
    ForeignParser foreign;
    char const* out[2] = {nullptr, nullptr};
    EXPECT_EQ(quen_3_1::suggestNames(host.parser(), "levl", out, 0), 0);
    EXPECT_EQ(quen_3_1::suggestNames(host.parser(), "levl", nullptr, 2), 0);
    EXPECT_EQ(quen_3_1::suggestNames(host.parser(), nullptr, out, 2), 0);
    EXPECT_EQ(quen_3_1::suggestNames(nullptr, "levl", out, 2), 0);
    EXPECT_EQ(quen_3_1::suggestNames(&foreign, "levl", out, 2), 0);
    EXPECT_EQ(out[0], nullptr);
}

TEST_F(Extras, EnvironmentValueComesFirstAndTheCommandLineWins) {
    setVariable("QUEN_EXTRAS_TEST_LEVEL", "4");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), kPrefix), 0);
    EXPECT_EQ(host.parseArgs({"--level=9"}), 0);
    EXPECT_EQ(textsOf(host.result(), "level"), (std::vector<std::string>{"4", "9"}));
    quen_3_1::Value const last = quen_3_1::getLastValue(host.result(), "level");
    EXPECT_EQ(std::string(last.m_text), "9");
    EXPECT_EQ(last.as<int>(), 9);
}

TEST_F(Extras, EnvironmentValueBeatsTheDefault) {
    setVariable("QUEN_EXTRAS_TEST_LEVEL", "4");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), kPrefix), 0);
    EXPECT_EQ(host.parseArgs({}), 0);
    EXPECT_EQ(std::string(quen_3_1::getLastValue(host.result(), "level").m_text), "4");
}

TEST_F(Extras, EnvironmentBooleansGiveTheNameOrItsNoForm) {
    setVariable("QUEN_EXTRAS_TEST_VERBOSE", "0");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), kPrefix), 0);
    EXPECT_EQ(textsOf(host.result(), "verbose"), (std::vector<std::string>{"0"}));
    EXPECT_EQ(host.parseArgs({"--verb"}), 0);
    EXPECT_EQ(textsOf(host.result(), "verbose"), (std::vector<std::string>{"0", "1"}));
    EXPECT_EQ(std::string(quen_3_1::getLastValue(host.result(), "verbose").m_text), "1");
}

TEST_F(Extras, EnvironmentBooleanOfAnotherTextFailsAsTheParserSaysSo) {
    setVariable("QUEN_EXTRAS_TEST_VERBOSE", "yes");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), kPrefix), 2);
    EXPECT_EQ(host.error(),
              "Option 'verbose' is boolean and should be declared in form '--option' or '--no-option' in argument: "
              "'--verbose=yes'");
}

TEST_F(Extras, EnvironmentValueWithALineBreakIsRefused) {
    setVariable("QUEN_EXTRAS_TEST_LOG_FILE", "a.log\n--verbose");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), kPrefix), 2);
    EXPECT_EQ(host.error(), "Environment variable 'QUEN_EXTRAS_TEST_LOG_FILE' holds a line break");
    EXPECT_EQ(textsOf(host.result(), "verbose"), std::vector<std::string>{});
}

TEST_F(Extras, EnvironmentIgnoresHiddenAndValuelessOptions) {
    setVariable("QUEN_EXTRAS_TEST_DEBUG_DUMP", "x");
    setVariable("QUEN_EXTRAS_TEST_VERSION", "1");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), kPrefix), 0);
    EXPECT_FALSE(host.result()->present("debug-dump"));
    EXPECT_FALSE(host.result()->present("version"));
}

TEST_F(Extras, EnvironmentWithoutPrefixReadsTheBareName) {
    host.parser()->option("quen-extras-probe", "Probe.", tarvo2::vt_str, "general");
    setVariable("QUEN_EXTRAS_PROBE", "seen");
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), host.result(), nullptr), 0);
    EXPECT_EQ(textsOf(host.result(), "quen-extras-probe"), (std::vector<std::string>{"seen"}));
}

TEST_F(Extras, EnvironmentNeedsTheLibrarysParserAndResult) {
    ForeignParser foreign;
    ForeignResult result;
    EXPECT_EQ(quen_3_1::parseEnvironment(nullptr, host.result(), kPrefix), 3);
    EXPECT_EQ(quen_3_1::parseEnvironment(&foreign, host.result(), kPrefix), 3);
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), nullptr, kPrefix), 3);
    EXPECT_EQ(quen_3_1::parseEnvironment(host.parser(), &result, kPrefix), 3);
}

}  // namespace
