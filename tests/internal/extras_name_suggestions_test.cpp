#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "extras/name_suggestions.h"
#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "support/internal_fixture.h"

using quen_3_1::BasicParser;

namespace {

using Names = std::vector<std::string>;

class NameSuggestions : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        parser.option("verbose", "", tarvo2::vt_bool, "g");
        parser.option("version", "", tarvo2::vt_empty, "g");
        parser.option("log-file", "", tarvo2::vt_str, "g");
        parser.option("log-format", "", tarvo2::vt_str, "g");
        parser.option("level", "", tarvo2::vt_int, "g");
        parser.option("output", "", tarvo2::vt_str, "g")->synonym("out");
        parser.option("debug-dump", "", tarvo2::vt_str, "quen_hidden");
    }

    Names closest(std::string const& typed, std::size_t max = 10) {
        return quen_3_1::closestNames(parser.storage(), typed, max);
    }

    BasicParser parser{0};
};

TEST(EditDistance, CountsEachKindOfEditOnce) {
    EXPECT_EQ(quen_3_1::editDistance("verbose", "verbose"), 0U);
    EXPECT_EQ(quen_3_1::editDistance("verbsoe", "verbose"), 1U);   // neighbours swapped
    EXPECT_EQ(quen_3_1::editDistance("verbos", "verbose"), 1U);    // one left out
    EXPECT_EQ(quen_3_1::editDistance("verbosee", "verbose"), 1U);  // one too many
    EXPECT_EQ(quen_3_1::editDistance("verbise", "verbose"), 1U);   // one wrong
    EXPECT_EQ(quen_3_1::editDistance("", "abc"), 3U);
    EXPECT_EQ(quen_3_1::editDistance("abc", ""), 3U);
    EXPECT_EQ(quen_3_1::editDistance("ca", "abc"), 3U);  // a swapped pair is not edited again
}

TEST(EditDistance, AbbreviationCostsOnlyItsMistakes) {
    EXPECT_EQ(quen_3_1::abbreviationDistance("ver", "verbose"), 0U);
    EXPECT_EQ(quen_3_1::abbreviationDistance("", "verbose"), 0U);
    EXPECT_EQ(quen_3_1::abbreviationDistance("vre", "verbose"), 1U);
    EXPECT_EQ(quen_3_1::abbreviationDistance("verbosex", "verbose"), 1U);
    EXPECT_EQ(quen_3_1::abbreviationDistance("x", "verbose"), 1U);
    EXPECT_EQ(quen_3_1::abbreviationDistance("abc", ""), 3U);
}

TEST(EditDistance, NamesCompareWholeAndPartByPart) {
    EXPECT_EQ(quen_3_1::nameDistance("l-f", "log-file"), 0U);
    EXPECT_EQ(quen_3_1::nameDistance("lgo-fiel", "log-file"), 2U);
    EXPECT_EQ(quen_3_1::nameDistance("lg-fl", "log-file"), 2U);
    EXPECT_EQ(quen_3_1::nameDistance("logfile", "log-file"), 1U);
    EXPECT_EQ(quen_3_1::nameDistance("log_file", "log-file"), 1U);
    EXPECT_EQ(quen_3_1::nameDistance("file-log", "log-file"), 6U);
}

TEST(EditDistance, TypedNameIsWhatFollowsTheHyphensUpToEquals) {
    EXPECT_EQ(quen_3_1::typedOptionName("--log-file=/tmp/x"), "log-file");
    EXPECT_EQ(quen_3_1::typedOptionName("-v"), "v");
    EXPECT_EQ(quen_3_1::typedOptionName("verbose"), "verbose");
    EXPECT_EQ(quen_3_1::typedOptionName("---x"), "-x");
    EXPECT_EQ(quen_3_1::typedOptionName("-"), "");
    EXPECT_EQ(quen_3_1::typedOptionName("--=3"), "");
}

TEST_F(NameSuggestions, SwappedLettersAreOneEdit) {
    EXPECT_EQ(closest("verbsoe"), (Names{"verbose"}));
    EXPECT_EQ(closest("evrsion"), (Names{"version"}));
}

TEST_F(NameSuggestions, MissingExtraAndWrongLettersAreForgiven) {
    EXPECT_EQ(closest("lvel"), (Names{"level"}));
    EXPECT_EQ(closest("levvel"), (Names{"level"}));
    EXPECT_EQ(closest("lebel"), (Names{"level"}));
}

TEST_F(NameSuggestions, MistypedAbbreviatedPartsAreForgiven) {
    EXPECT_EQ(closest("lgo-fiel"), (Names{"log-file"}));
    EXPECT_EQ(closest("lgo-fi"), (Names{"log-file", "log-format"}));
    EXPECT_EQ(closest("log-frm"), (Names{"log-format", "log-file"}));
}

TEST_F(NameSuggestions, MissingOrWrongSeparatorIsOneEdit) {
    EXPECT_EQ(closest("logfile"), (Names{"log-file"}));
    EXPECT_EQ(closest("log_format"), (Names{"log-format"}));
}

TEST_F(NameSuggestions, AmbiguousAbbreviationListsTheTiedNamesFirst) {
    EXPECT_EQ(closest("ve"), (Names{"verbose", "version"}));
    EXPECT_EQ(closest("ve", 1), (Names{"verbose"}));
    EXPECT_EQ(closest("ou"), (Names{"output", "out"}));
}

TEST_F(NameSuggestions, NegatedBooleansAreSuggestedInTheirNoForm) {
    EXPECT_EQ(closest("no-verbsoe"), (Names{"no-verbose"}));
    EXPECT_EQ(closest("no-verbosity"), (Names{"no-verbose"}));
}

TEST_F(NameSuggestions, HiddenOptionsAreNeverSuggested) {
    EXPECT_EQ(closest("debug-dmup"), Names{});
    EXPECT_EQ(closest("debug-dump"), Names{});
}

TEST_F(NameSuggestions, FarOrEmptyNamesGiveNothing) {
    EXPECT_EQ(closest("zzz"), Names{});
    EXPECT_EQ(closest(""), Names{});
    EXPECT_EQ(closest("verbsoe", 0), Names{});
}

TEST_F(NameSuggestions, ReachGrowsWithTheTypedLength) {
    EXPECT_EQ(closest("x"), Names{});
    EXPECT_EQ(closest("v"), (Names{"verbose", "version"}));
    EXPECT_EQ(closest("lrvel"), (Names{"level"}));
    EXPECT_EQ(closest("lrvrl"), Names{});
    EXPECT_EQ(closest("lgo-fiel"), (Names{"log-file"}));
    EXPECT_EQ(closest("lgo-feil-x"), Names{});
}

TEST(EditDistance, OnlyTheLeadingBytesAreCompared) {
    std::string const head(quen_3_1::kComparedLength, 'x');
    EXPECT_EQ(quen_3_1::nameDistance(head + "abc", head + "xyz"), 0U);
    EXPECT_EQ(quen_3_1::nameDistance(head + std::string(1 << 20, 'a'), head), 0U);
    EXPECT_EQ(quen_3_1::nameDistance(std::string(1 << 20, 'a'), std::string(1 << 20, 'b')), quen_3_1::kComparedLength);
}

TEST_F(NameSuggestions, MegabyteNameAndTypedTextAreComparedOnTheirHeads) {
    std::string const huge(1 << 20, 'q');
    parser.option(huge.c_str(), "", tarvo2::vt_str, "g");
    EXPECT_EQ(closest(huge), (Names{huge}));
    EXPECT_EQ(closest(std::string(quen_3_1::kComparedLength, 'q') + "-and-more"), (Names{huge}));
    EXPECT_EQ(closest(std::string(1 << 20, 'z')), Names{});
}

}  // namespace
