#include "recognizers/name_matching.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "options/registered_option_storage.h"
#include "recognizers/decomposed_name.h"
#include "support/internal_fixture.h"
#include "support/literal_name_matching.h"
#include "values/garbage.h"

using quen_3_1::BasicParser;
using quen_3_1::DecomposedName;
using quen_3_1::Garbage;
using quen_3_1::RegisteredOptionStorage;
using NameMatch = quen_test::NameMatch;

namespace {

std::vector<std::string> namesOf(std::vector<DecomposedName> const& names) {
    std::vector<std::string> out;
    for (DecomposedName const& name : names) {
        out.push_back(name.getName());
    }
    return out;
}

std::vector<std::string> namesOf(std::vector<NameMatch> const& matches) {
    std::vector<std::string> out;
    for (NameMatch const& match : matches) {
        out.push_back(match.name.getName());
    }
    return out;
}

class NameMatching : public quen_test::InternalTest {
protected:
    NameMatching() : parser(0) { storage.setGarbage(&garbage); }

    void add(char const* names, quen_3_1::kel_variant_type_t type) { storage.option(names, "help", type, "general"); }

    // Every registered name, as recognize lists the candidates.
    std::vector<DecomposedName> candidates() {
        std::vector<DecomposedName> names;
        recognizer.makeOptionNamesList(storage, names);
        return names;
    }

    // The whole chain recognize runs for one typed name; it may set `best` and `message`.
    int choose(std::string const& typed) {
        std::vector<DecomposedName> const names = candidates();
        std::vector<NameMatch> matches;
        recognizer.makeNameMatch(matches, DecomposedName(typed), names);
        return recognizer.findBest(matches, best, message);
    }

    // Matches of one typed name against the given candidates, in their order.
    std::vector<NameMatch> match(std::string const& typed, std::vector<std::string> const& candidates) {
        std::vector<DecomposedName> names;
        for (std::string const& candidate : candidates) {
            names.emplace_back(candidate);
        }
        std::vector<NameMatch> matches;
        recognizer.makeNameMatch(matches, DecomposedName(typed), names);
        return matches;
    }

    BasicParser parser;
    Garbage garbage;
    RegisteredOptionStorage storage;
    quen_test::LiteralNameMatching recognizer;
    DecomposedName best;
    std::string message;
};

}  // namespace

// Candidate list

TEST_F(NameMatching, CandidateListHoldsEveryNameInRegistrationOrder) {
    add("level,lv", tarvo2::vt_int);
    add("output", tarvo2::vt_str);
    add("flag", tarvo2::vt_empty);
    std::vector<DecomposedName> const names = candidates();
    EXPECT_EQ(namesOf(names), (std::vector<std::string>{"level", "lv", "output", "flag"}));
}

TEST_F(NameMatching, BooleanNoFormFollowsItsName) {
    add("level", tarvo2::vt_int);
    add("verbose", tarvo2::vt_bool);
    add("flag", tarvo2::vt_empty);
    std::vector<DecomposedName> const names = candidates();
    EXPECT_EQ(namesOf(names), (std::vector<std::string>{"level", "verbose", "no-verbose", "flag"}));
    ASSERT_EQ(names.size(), 4U);
    EXPECT_EQ(names[2].parts, (std::vector<std::string>{"no", "verbose"}));
}

TEST_F(NameMatching, EveryBooleanNameAndSynonymHasItsNoForm) {
    storage.option("verbose,vb", "help", tarvo2::vt_bool, "general")->synonym("loud");
    std::vector<DecomposedName> const names = candidates();
    EXPECT_EQ(namesOf(names), (std::vector<std::string>{"verbose", "no-verbose", "vb", "no-vb", "loud", "no-loud"}));
}

TEST_F(NameMatching, SynonymsFollowTheFirstName) {
    storage.option("output,o", "help", tarvo2::vt_str, "general")->synonym("out");
    add("level", tarvo2::vt_int);
    std::vector<DecomposedName> const names = candidates();
    EXPECT_EQ(namesOf(names), (std::vector<std::string>{"output", "o", "out", "level"}));
}

TEST_F(NameMatching, CandidateListIsAppendedNotCleared) {
    add("verbose", tarvo2::vt_bool);
    std::vector<DecomposedName> names{DecomposedName("kept-name")};
    recognizer.makeOptionNamesList(storage, names);
    recognizer.makeOptionNamesList(storage, names);
    EXPECT_EQ(namesOf(names),
              (std::vector<std::string>{"kept-name", "verbose", "no-verbose", "verbose", "no-verbose"}));
}

TEST_F(NameMatching, EmptyRegistryAddsNoCandidate) {
    std::vector<DecomposedName> const names = candidates();
    EXPECT_TRUE(names.empty());
}

// Scores

TEST_F(NameMatching, EqualPartScoresTwo) {
    std::vector<NameMatch> const matches = match("verbose", {"verbose"});
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_TRUE(matches[0].sameLength);
    EXPECT_EQ(matches[0].score, 2);
    EXPECT_EQ(matches[0].name.getName(), "verbose");
}

TEST_F(NameMatching, ProperPrefixScoresOne) {
    std::vector<NameMatch> const matches = match("verb", {"verbose"});
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_TRUE(matches[0].sameLength);
    EXPECT_EQ(matches[0].score, 1);
}

TEST_F(NameMatching, PartScoresAddUp) {
    // "log" is longer than "l", so the second candidate is dropped.
    std::vector<NameMatch> const matches = match("log-f", {"log-file", "l-f", "log-f"});
    ASSERT_EQ(matches.size(), 2U);
    EXPECT_EQ(matches[0].name.getName(), "log-file");
    EXPECT_EQ(matches[0].score, 3);
    EXPECT_EQ(matches[1].name.getName(), "log-f");
    EXPECT_EQ(matches[1].score, 4);
    EXPECT_EQ(match("log-file", {"log-file"}).at(0).score, 4);
    EXPECT_EQ(match("l-f", {"log-file"}).at(0).score, 2);
}

TEST_F(NameMatching, NonPrefixPartDropsTheCandidate) {
    EXPECT_TRUE(match("x", {"verbose"}).empty());
    EXPECT_TRUE(match("verbosex", {"verbose"}).empty());
    EXPECT_TRUE(match("Verb", {"verbose"}).empty());
}

TEST_F(NameMatching, MismatchAfterMatchingPartsResetsScoreToZero) {
    // "log" alone would have scored 2; the failing second part leaves nothing.
    EXPECT_TRUE(match("log-x", {"log-file"}).empty());
    EXPECT_TRUE(match("x-file", {"log-file"}).empty());
}

TEST_F(NameMatching, TypedNameWithMorePartsThanCandidateNeverMatches) {
    EXPECT_TRUE(match("log-file", {"log"}).empty());
    EXPECT_TRUE(match("no-v", {"verbose"}).empty());
}

TEST_F(NameMatching, ShorterTypedNameIsRecordedWithoutSameLength) {
    std::vector<NameMatch> const matches = match("log", {"log-file", "log"});
    ASSERT_EQ(matches.size(), 2U);
    EXPECT_FALSE(matches[0].sameLength);
    EXPECT_EQ(matches[0].score, 2);
    EXPECT_EQ(matches[0].name.getName(), "log-file");
    EXPECT_TRUE(matches[1].sameLength);
    EXPECT_EQ(matches[1].score, 2);
}

TEST_F(NameMatching, EmptyTypedPartIsPrefixOfEveryPart) {
    EXPECT_EQ(match("a--b", {"a-x-b"}).at(0).score, 5);
    EXPECT_EQ(match("a--b", {"a--b"}).at(0).score, 6);
    EXPECT_EQ(match("a--b", {"add-x-bar"}).at(0).score, 3);
    EXPECT_EQ(match("-", {"log-file"}).at(0).score, 2);
    EXPECT_EQ(match("", {"verbose"}).at(0).score, 1);
}

TEST_F(NameMatching, MatchesKeepCandidateOrderAndAreAppended) {
    std::vector<DecomposedName> names{DecomposedName("version"), DecomposedName("level"), DecomposedName("verbose")};
    std::vector<NameMatch> matches{NameMatch{true, 7, DecomposedName("earlier")}};
    recognizer.makeNameMatch(matches, DecomposedName("ver"), names);
    EXPECT_EQ(namesOf(matches), (std::vector<std::string>{"earlier", "version", "verbose"}));
    EXPECT_EQ(matches[0].score, 7);
}

// Choosing the best candidate

TEST_F(NameMatching, CommonPrefixOfTwoOptionsIsAmbiguous) {
    add("verbose", tarvo2::vt_empty);
    add("version", tarvo2::vt_empty);
    best = DecomposedName("untouched");
    EXPECT_EQ(choose("ver"), 2);
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'verbose', 'version'");
    EXPECT_EQ(best.getName(), "untouched");
    ASSERT_EQ(recognizer.bestMatches().size(), 2U);
    EXPECT_EQ(recognizer.bestMatches()[0].score, 1);
    EXPECT_EQ(recognizer.bestMatches()[1].score, 1);
}

TEST_F(NameMatching, FullNamePicksItsOption) {
    add("verbose", tarvo2::vt_empty);
    add("version", tarvo2::vt_empty);
    message = "before";
    EXPECT_EQ(choose("verbose"), 0);
    EXPECT_EQ(best.getName(), "verbose");
    EXPECT_EQ(message, "before");
    ASSERT_EQ(recognizer.bestMatches().size(), 1U);
    EXPECT_EQ(recognizer.bestMatches()[0].score, 2);
}

TEST_F(NameMatching, LongerPrefixIsUnique) {
    add("verbose", tarvo2::vt_empty);
    add("version", tarvo2::vt_empty);
    EXPECT_EQ(choose("vers"), 0);
    EXPECT_EQ(best.getName(), "version");
    EXPECT_EQ(message, "");
}

TEST_F(NameMatching, EveryPartMayBeAbbreviated) {
    add("log-file", tarvo2::vt_str);
    EXPECT_EQ(choose("l-f"), 0);
    EXPECT_EQ(best.getName(), "log-file");
    ASSERT_EQ(recognizer.bestMatches().size(), 1U);
    EXPECT_EQ(recognizer.bestMatches()[0].score, 2);
}

TEST_F(NameMatching, FewerPartsFindNothing) {
    add("log-file", tarvo2::vt_str);
    best = DecomposedName("untouched");
    message = "untouched";
    EXPECT_EQ(choose("log"), 1);
    EXPECT_EQ(best.getName(), "untouched");
    EXPECT_EQ(message, "untouched");
    EXPECT_TRUE(recognizer.bestMatches().empty());
}

TEST_F(NameMatching, ExactPartBeatsPrefix) {
    add("add-file", tarvo2::vt_str);
    add("a-file", tarvo2::vt_str);
    EXPECT_EQ(choose("a-file"), 0);
    EXPECT_EQ(best.getName(), "a-file");
    ASSERT_EQ(recognizer.bestMatches().size(), 1U);
    EXPECT_EQ(recognizer.bestMatches()[0].score, 4);
    EXPECT_EQ(choose("ad-file"), 0);
    EXPECT_EQ(best.getName(), "add-file");
}

TEST_F(NameMatching, AbbreviatedNoFormOfBoolean) {
    add("verbose", tarvo2::vt_bool);
    EXPECT_EQ(choose("no-v"), 0);
    EXPECT_EQ(best.getName(), "no-verbose");
    ASSERT_EQ(recognizer.bestMatches().size(), 1U);
    EXPECT_EQ(recognizer.bestMatches()[0].score, 3);
}

TEST_F(NameMatching, SinglePartNeverMatchesNoForm) {
    add("verbose", tarvo2::vt_bool);
    message = "untouched";
    EXPECT_EQ(choose("n"), 1);
    EXPECT_EQ(message, "untouched");
}

TEST_F(NameMatching, PrefixOfNameAndSynonymIsAmbiguous) {
    storage.option("output", "help", tarvo2::vt_str, "general")->synonym("out");
    EXPECT_EQ(choose("ou"), 2);
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'output', 'out'");
}

TEST_F(NameMatching, FullSynonymBeatsLongerName) {
    storage.option("output", "help", tarvo2::vt_str, "general")->synonym("out");
    EXPECT_EQ(choose("out"), 0);
    EXPECT_EQ(best.getName(), "out");
}

TEST_F(NameMatching, TieBetweenNamesOfOneOptionIsStillAmbiguous) {
    add("colour,color", tarvo2::vt_str);
    EXPECT_EQ(choose("col"), 2);
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'colour', 'color'");
}

TEST_F(NameMatching, AmbiguityListsEveryTiedCandidateInListOrder) {
    add("alto", tarvo2::vt_empty);
    add("alpha", tarvo2::vt_empty);
    add("beta", tarvo2::vt_empty);
    add("alps", tarvo2::vt_empty);
    EXPECT_EQ(choose("al"), 2);
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'alto', 'alpha', 'alps'");
    EXPECT_EQ(namesOf(recognizer.bestMatches()), (std::vector<std::string>{"alto", "alpha", "alps"}));
}

TEST_F(NameMatching, EmptyTypedPartMatchesThreePartName) {
    add("add-some-bytes", tarvo2::vt_str);
    add("log-file", tarvo2::vt_str);
    EXPECT_EQ(choose("a--b"), 0);
    EXPECT_EQ(best.getName(), "add-some-bytes");
}

TEST_F(NameMatching, EmptyRegistryFindsNothingAndKeepsMessage) {
    best = DecomposedName("untouched");
    message = "previous message";
    EXPECT_EQ(choose("verbose"), 1);
    EXPECT_EQ(message, "previous message");
    EXPECT_EQ(best.getName(), "untouched");
    EXPECT_TRUE(recognizer.bestMatches().empty());
}

TEST_F(NameMatching, BestMatchesAreRebuiltOnEveryCall) {
    add("verbose", tarvo2::vt_empty);
    add("version", tarvo2::vt_empty);
    ASSERT_EQ(choose("ver"), 2);
    EXPECT_EQ(namesOf(recognizer.bestMatches()), (std::vector<std::string>{"verbose", "version"}));
    ASSERT_EQ(choose("vers"), 0);
    EXPECT_EQ(namesOf(recognizer.bestMatches()), (std::vector<std::string>{"version"}));
    ASSERT_EQ(choose("zzz"), 1);
    EXPECT_TRUE(recognizer.bestMatches().empty());
    ASSERT_EQ(choose("verb"), 0);
    EXPECT_EQ(namesOf(recognizer.bestMatches()), (std::vector<std::string>{"verbose"}));
}

TEST_F(NameMatching, RecordsOfOtherLengthAreSkippedWhateverTheirScore) {
    std::vector<NameMatch> const matches{NameMatch{false, 9, DecomposedName("a-b")},
                                         NameMatch{true, 1, DecomposedName("alpha")}};
    EXPECT_EQ(recognizer.findBest(matches, best, message), 0);
    EXPECT_EQ(best.getName(), "alpha");
}

TEST_F(NameMatching, OnlyOtherLengthRecordsFindNothing) {
    std::vector<NameMatch> const matches{NameMatch{false, 2, DecomposedName("log-file")}};
    best = DecomposedName("untouched");
    message = "untouched";
    EXPECT_EQ(recognizer.findBest(matches, best, message), 1);
    EXPECT_EQ(best.getName(), "untouched");
    EXPECT_EQ(message, "untouched");
}

TEST_F(NameMatching, HigherScoreReplacesEarlierTies) {
    std::vector<NameMatch> const matches{
        NameMatch{true, 1, DecomposedName("alpha")}, NameMatch{true, 1, DecomposedName("alps")},
        NameMatch{true, 2, DecomposedName("al")}, NameMatch{true, 1, DecomposedName("alto")}};
    EXPECT_EQ(recognizer.findBest(matches, best, message), 0);
    EXPECT_EQ(best.getName(), "al");
    EXPECT_EQ(namesOf(recognizer.bestMatches()), (std::vector<std::string>{"al"}));
}

// An exact name scores 2 for each of its parts, empty parts between two
// hyphens included, as if every part had been compared.
TEST_F(NameMatching, IndexedExactNameScoresTwoPerPartEmptyOnesIncluded) {
    add("log--file", tarvo2::vt_empty);
    add("-", tarvo2::vt_empty);
    add("plain", tarvo2::vt_empty);
    quen_3_1::BestNameMatch matcher;
    EXPECT_EQ(matcher.find(storage.names(), "log--file").size(), 1U);
    EXPECT_EQ(matcher.score(), 6);
    EXPECT_EQ(matcher.find(storage.names(), "-").size(), 1U);
    EXPECT_EQ(matcher.score(), 4);
    EXPECT_EQ(matcher.find(storage.names(), "plain").size(), 1U);
    EXPECT_EQ(matcher.score(), 2);
}

// A boolean's "no-" form is a name of its own: its hyphen is one more part.
TEST_F(NameMatching, IndexedExactNegatedNameCountsItsPrefixAsAPart) {
    add("log-file", tarvo2::vt_bool);
    quen_3_1::BestNameMatch matcher;
    EXPECT_EQ(matcher.find(storage.names(), "no-log-file").size(), 1U);
    EXPECT_EQ(matcher.score(), 6);
    EXPECT_EQ(matcher.find(storage.names(), "log-file").size(), 1U);
    EXPECT_EQ(matcher.score(), 4);
}
