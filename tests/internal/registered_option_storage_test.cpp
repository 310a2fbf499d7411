// The registry of one parser: help groups, name-list splitting and checking,
// the detached placeholder handed out on refusal, and name lookup.
#include "options/registered_option_storage.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "frontend/trace.h"
#include "support/capture.h"
#include "support/internal_fixture.h"
#include "support/literal_name_matching.h"
#include "support/name_texts.h"
#include "values/garbage.h"

using quen_3_1::Garbage;
using quen_3_1::IOption;
using quen_3_1::OptionDescription;
using quen_3_1::RegisteredOptionStorage;
using quen_test::FdCapture;
using tarvo2::variant_t;

namespace {

using Names = std::vector<std::string>;
using Groups = std::vector<std::pair<std::string, std::string>>;

std::string const kNul(1, '\0');

class Registry : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        m_storage.setGarbage(&m_keeper);
    }

    IOption* add(char const* names, tarvo2::kel_variant_type_t type = tarvo2::vt_int, char const* group = "general") {
        return m_storage.option(names, "help", type, group);
    }

    // True when `option` is the placeholder rather than a stored description.
    bool isPlaceholder(IOption const* option) const {
        return option == static_cast<IOption const*>(&m_storage.invalidOption());
    }

    Garbage m_keeper;
    RegisteredOptionStorage m_storage;
};

}  // namespace

// ---------------------------------------------------------------- groups

TEST_F(Registry, GroupWithTitleIsSplitAtFirstColon) {
    add("a", tarvo2::vt_int, "general:General options");
    add("b", tarvo2::vt_int, "paths:Files: inputs and outputs");
    EXPECT_EQ(m_storage.groups(), (Groups{{"general", "General options"}, {"paths", "Files: inputs and outputs"}}));
    EXPECT_EQ(m_storage.at(1).group(), "paths");
    EXPECT_EQ(m_storage.at(1).groupTitle(), "Files: inputs and outputs");
}

TEST_F(Registry, GroupWithoutColonHasEmptyTitle) {
    add("a", tarvo2::vt_int, "general");
    add("b", tarvo2::vt_int, "");
    add("c", tarvo2::vt_int, ":Only a title");
    EXPECT_EQ(m_storage.groups(), (Groups{{"general", ""}, {"", ""}}));
    EXPECT_EQ(m_storage.at(2).group(), "");
    EXPECT_EQ(m_storage.at(2).groupTitle(), "");
}

TEST_F(Registry, FirstTitleOfAGroupWins) {
    add("a", tarvo2::vt_int, "general:General options");
    add("b", tarvo2::vt_int, "general:Other");
    add("c", tarvo2::vt_int, "general");
    EXPECT_EQ(m_storage.groups(), (Groups{{"general", "General options"}}));
    EXPECT_EQ(m_storage.at(1).group(), "general");
    EXPECT_EQ(m_storage.at(1).groupTitle(), "General options");
    EXPECT_EQ(m_storage.at(2).groupTitle(), "General options");
}

TEST_F(Registry, GroupsKeepFirstSeenOrderAndCase) {
    add("a", tarvo2::vt_int, "beta");
    add("b", tarvo2::vt_int, "alpha");
    add("c", tarvo2::vt_int, "beta");
    add("d", tarvo2::vt_int, "Alpha");
    EXPECT_EQ(m_storage.groups(), (Groups{{"beta", ""}, {"alpha", ""}, {"Alpha", ""}}));
}

TEST_F(Registry, GroupNamedByTheBeginningOfAnotherIsAGroupOfItsOwn) {
    add("a", tarvo2::vt_int, "general:General options");
    add("b", tarvo2::vt_int, "gen");
    add("c", tarvo2::vt_int, "general-more");
    add("d", tarvo2::vt_int, "gen:Short");
    add("e", tarvo2::vt_int, "general:");
    EXPECT_EQ(m_storage.groups(), (Groups{{"general", "General options"}, {"gen", ""}, {"general-more", ""}}));
    EXPECT_EQ(m_storage.at(3).group(), "gen");
    EXPECT_EQ(m_storage.at(3).groupTitle(), "");
    EXPECT_EQ(m_storage.at(4).groupTitle(), "General options");
}

TEST_F(Registry, RefusedRegistrationStillRecordsItsGroup) {
    add("a", tarvo2::vt_int, "one");
    FdCapture err(2);
    IOption* const refused = add("a", tarvo2::vt_int, "two:Second");
    EXPECT_EQ(err.finish(), "a\n");
    EXPECT_TRUE(isPlaceholder(refused));
    EXPECT_EQ(m_storage.size(), 1u);
    EXPECT_EQ(m_storage.groups(), (Groups{{"one", ""}, {"two", "Second"}}));
    add("p,q,r,s", tarvo2::vt_int, "three");
    EXPECT_EQ(m_storage.size(), 1u);
    EXPECT_EQ(m_storage.groups().back(), (std::pair<std::string, std::string>{"three", ""}));
}

// ---------------------------------------------------------------- name lists

TEST_F(Registry, NamesAreSplitAtCommas) {
    add("log-file,lf");
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"log-file", "lf"}));
}

TEST_F(Registry, NamesAreKeptApartFromTheHostsTextEachEndedByNul) {
    std::string list = "log-file,lf";
    add(list.c_str(), tarvo2::vt_bool);
    list.assign("overwritten");
    OptionDescription const& stored = m_storage.at(0);
    EXPECT_EQ(quen_test::namesOf(stored), (Names{"log-file", "lf"}));
    for (std::string_view const name : stored.names()) {
        EXPECT_EQ(name.data()[name.size()], '\0') << name;
    }
    EXPECT_STREQ(stored.primaryName().data(), "log-file");
    std::size_t const negated = m_storage.names().firstNamed("no-lf");
    ASSERT_NE(negated, quen_3_1::NameIndex::npos);
    EXPECT_TRUE(m_storage.names().candidate(negated).negated);
    EXPECT_EQ(m_storage.names().candidate(negated).option, 0u);
}

TEST_F(Registry, SynonymOfAStoredBooleanIsKeptWithItsNegatedForm) {
    IOption* const option = add("verbose", tarvo2::vt_bool);
    std::string synonym = "loud";
    option->synonym(synonym.c_str());
    synonym.assign("gone");
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"verbose", "loud"}));
    std::size_t const negated = m_storage.names().firstNamed("no-loud");
    ASSERT_NE(negated, quen_3_1::NameIndex::npos);
    EXPECT_EQ(m_storage.names().candidate(negated).text, "no-loud");
    EXPECT_EQ(m_storage.names().candidate(negated).name, 1u);
    EXPECT_THROW(option->synonym(nullptr), std::logic_error);
    EXPECT_EQ(m_storage.at(0).names().size(), 2u);
}

TEST_F(Registry, DoubleCommaKeepsTheSecondCommaInTheName) {
    add("a,,b");
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"a", ",b"}));
}

TEST_F(Registry, LeadingCommaGivesAnEmptyFirstName) {
    add(",a");
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"", "a"}));
}

TEST_F(Registry, TrailingCommaGivesANulName) {
    add("a,");
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"a", kNul}));
}

TEST_F(Registry, TrailingCommaNulNamePassesTheShortFormRule) {
    IOption* const option = add("x,y,");
    EXPECT_FALSE(isPlaceholder(option));
    ASSERT_EQ(m_storage.size(), 1u);
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"x", "y", kNul}));
}

TEST_F(Registry, EmptyNameListRegistersANamelessOption) {
    IOption* const first = add("");
    IOption* const second = add("");
    EXPECT_FALSE(isPlaceholder(first));
    EXPECT_FALSE(isPlaceholder(second));
    ASSERT_EQ(m_storage.size(), 2u);
    EXPECT_TRUE(m_storage.at(0).names().empty());
    EXPECT_TRUE(m_storage.at(1).names().empty());
}

TEST(RegistrySplit, Examples) {
    struct Case {
        char const* text;
        Names expected;
    };
    for (Case const& c : std::vector<Case>{{"a,b", {"a", "b"}},
                                           {"a,,b", {"a", ",b"}},
                                           {",a", {"", "a"}},
                                           {"a,", {"a", kNul}},
                                           {"x,y,", {"x", "y", kNul}},
                                           {"", {}},
                                           {"single", {"single"}}}) {
        Names out;
        EXPECT_EQ(RegisteredOptionStorage::split(c.text, out), 0) << c.text;
        EXPECT_EQ(out, c.expected) << c.text;
    }
}

TEST(RegistrySplit, AppendsToWhatIsThere) {
    Names out{"kept"};
    EXPECT_EQ(RegisteredOptionStorage::split("a,b", out), 0);
    EXPECT_EQ(out, (Names{"kept", "a", "b"}));
}

// ---------------------------------------------------------------- refusals

TEST_F(Registry, FourNamesAreRefused) {
    FdCapture err(2);
    IOption* const option = add("a,b,c,d");
    EXPECT_EQ(err.finish(), "");
    EXPECT_TRUE(isPlaceholder(option));
    EXPECT_EQ(m_storage.size(), 0u);
    EXPECT_EQ(m_storage.invalidOption().status(), 1);
}

TEST_F(Registry, ThirdNameLongerThanTwoIsRefused) {
    IOption* const option = add("long,second,xyz");
    EXPECT_TRUE(isPlaceholder(option));
    EXPECT_EQ(m_storage.size(), 0u);
}

TEST_F(Registry, ThirdNameOfTwoCharactersIsAccepted) {
    IOption* const option = add("long,second,xy");
    EXPECT_FALSE(isPlaceholder(option));
    ASSERT_EQ(m_storage.size(), 1u);
    EXPECT_EQ(quen_test::namesOf(m_storage.at(0)), (Names{"long", "second", "xy"}));
}

TEST_F(Registry, SecondNameMayBeLong) {
    IOption* const option = add("a,a-very-long-second-name");
    EXPECT_FALSE(isPlaceholder(option));
    EXPECT_EQ(m_storage.size(), 1u);
}

TEST_F(Registry, DuplicateNameIsRefused) {
    add("verbose,v", tarvo2::vt_bool);
    FdCapture err(2);
    IOption* const refused = add("v");
    EXPECT_EQ(err.finish(), "v\n");
    EXPECT_TRUE(isPlaceholder(refused));
    EXPECT_EQ(m_storage.size(), 1u);
}

TEST_F(Registry, NamesAreCaseSensitive) {
    add("verbose");
    IOption* const other = add("Verbose");
    EXPECT_FALSE(isPlaceholder(other));
    EXPECT_EQ(m_storage.size(), 2u);
}

TEST_F(Registry, NoFormOfABooleanClashes) {
    add("debug", tarvo2::vt_bool);
    FdCapture err(2);
    IOption* const refused = add("no-debug", tarvo2::vt_int);
    EXPECT_EQ(err.finish(), "no-debug\n");
    EXPECT_TRUE(isPlaceholder(refused));
    EXPECT_EQ(m_storage.size(), 1u);
}

TEST_F(Registry, NoFormOfASynonymClashes) {
    add("debug,d", tarvo2::vt_bool);
    FdCapture err(2);
    EXPECT_TRUE(isPlaceholder(add("no-d", tarvo2::vt_bool)));
    EXPECT_EQ(err.finish(), "no-d\n");
    EXPECT_EQ(m_storage.size(), 1u);
}

TEST_F(Registry, NoDebugFirstThenBooleanDebugIsAccepted) {
    add("no-debug", tarvo2::vt_int);
    IOption* const accepted = add("debug", tarvo2::vt_bool);
    EXPECT_FALSE(isPlaceholder(accepted));
    EXPECT_EQ(m_storage.size(), 2u);
}

TEST_F(Registry, BooleanNoDebugFirstThenBooleanDebugIsAccepted) {
    add("no-debug", tarvo2::vt_bool);
    EXPECT_FALSE(isPlaceholder(add("debug", tarvo2::vt_bool)));
    EXPECT_EQ(m_storage.size(), 2u);
}

TEST_F(Registry, NonBooleanHasNoNoForm) {
    add("debug", tarvo2::vt_int);
    EXPECT_FALSE(isPlaceholder(add("no-debug", tarvo2::vt_bool)));
    EXPECT_EQ(m_storage.size(), 2u);
}

TEST_F(Registry, ClashReportsTheFirstNameOnStandardError) {
    add("verbose,v", tarvo2::vt_bool);
    quen_test::Outputs const written = quen_test::outputsOf([&] {
        add("v");
        add("quiet,verbose");
    });
    EXPECT_EQ(written.err, "v\nquiet\n");
    EXPECT_EQ(written.out, "");
}

TEST_F(Registry, ClashIsTracedWhileTheSwitchIsOn) {
    add("verbose,v", tarvo2::vt_bool);
    quen_3_1::internal::quenLogEnabled = true;
    quen_test::Outputs const written = quen_test::outputsOf([&] { add("v"); });
    EXPECT_EQ(written.out, "An option with the same name is already registered: v\n");
    EXPECT_EQ(written.err, "v\n");
}

TEST_F(Registry, ClashOnALaterNameStillReportsTheFirst) {
    add("verbose,v", tarvo2::vt_bool);
    quen_3_1::internal::quenLogEnabled = true;
    quen_test::Outputs const written = quen_test::outputsOf([&] { add("talk,v"); });
    EXPECT_EQ(written.out, "An option with the same name is already registered: talk\n");
    EXPECT_EQ(written.err, "talk\n");
}

TEST_F(Registry, ValidateNameCodes) {
    add("verbose,v", tarvo2::vt_bool);
    FdCapture err(2);
    EXPECT_EQ(m_storage.validateName(Names{}), 0);
    EXPECT_EQ(m_storage.validateName(Names{"new", "n"}), 0);
    EXPECT_EQ(m_storage.validateName(Names{"a", "b", "cd"}), 0);
    EXPECT_EQ(m_storage.validateName(Names{"a", "b", "cde"}), 1);
    EXPECT_EQ(m_storage.validateName(Names{"a", "b", "c", "d"}), 1);
    EXPECT_EQ(err.finish(), "");
    FdCapture clash(2);
    EXPECT_EQ(m_storage.validateName(Names{"new", "no-verbose"}), 1);
    EXPECT_EQ(clash.finish(), "new\n");
}

// ---------------------------------------------------------------- the placeholder

TEST_F(Registry, AcceptedRegistrationReturnsTheStoredDescription) {
    IOption* const option = add("level");
    EXPECT_EQ(option, static_cast<IOption const*>(&m_storage.at(0)));
    EXPECT_EQ(m_storage.at(0).status(), 0);
    EXPECT_EQ(m_storage.at(0).garbage(), &m_keeper);
}

TEST_F(Registry, PlaceholderStatusIsThreeAfterAcceptedAndOneAfterRefused) {
    add("level");
    EXPECT_EQ(m_storage.invalidOption().status(), 3);
    FdCapture err(2);
    add("level");
    EXPECT_EQ(err.finish(), "level\n");
    EXPECT_EQ(m_storage.invalidOption().status(), 1);
    add("other");
    EXPECT_EQ(m_storage.invalidOption().status(), 3);
    add("a,b,c,d");
    EXPECT_EQ(m_storage.invalidOption().status(), 1);
}

TEST_F(Registry, PlaceholderIsDetached) {
    OptionDescription const& placeholder = m_storage.invalidOption();
    EXPECT_TRUE(placeholder.names().empty());
    EXPECT_EQ(placeholder.type(), tarvo2::vt_empty);
    EXPECT_EQ(placeholder.tokenizer(), ',');
    EXPECT_EQ(placeholder.garbage(), nullptr);
}

TEST_F(Registry, SettersOnThePlaceholderChangeNothingInTheRegistry) {
    add("level");
    FdCapture err(2);
    IOption* const refused = add("level");
    EXPECT_EQ(err.finish(), "level\n");
    ASSERT_TRUE(isPlaceholder(refused));
    EXPECT_EQ(refused->synonym("ghost"), refused);
    EXPECT_EQ(refused->defaultValue(variant_t(9)), refused);
    EXPECT_EQ(refused->allowValue(variant_t(9)), refused);
    EXPECT_EQ(refused->tokenize(0), refused);
    EXPECT_EQ(refused->positional(), refused);
    ASSERT_EQ(m_storage.size(), 1u);
    OptionDescription const& level = m_storage.at(0);
    EXPECT_EQ(quen_test::namesOf(level), (Names{"level"}));
    EXPECT_FALSE(level.hasDefault());
    EXPECT_TRUE(level.allowedValues().empty());
    EXPECT_EQ(level.tokenizer(), ',');
    EXPECT_FALSE(level.isPositional());
    unsigned long index = 0;
    EXPECT_EQ(quen_test::isAdded(m_storage, "ghost", index), 1);
    EXPECT_FALSE(isPlaceholder(add("ghost")));
    EXPECT_EQ(m_storage.size(), 2u);
}

TEST_F(Registry, NullArgumentsThrowLogicError) {
    EXPECT_THROW(m_storage.option(nullptr, "help", tarvo2::vt_int, "g"), std::logic_error);
    EXPECT_THROW(m_storage.option("a", "help", tarvo2::vt_int, nullptr), std::logic_error);
    EXPECT_THROW(m_storage.option("b", nullptr, tarvo2::vt_int, "g"), std::logic_error);
    EXPECT_EQ(m_storage.size(), 0u);
}

// ---------------------------------------------------------------- lookup

TEST_F(Registry, FindOptionFollowsQueryNameOrderFirst) {
    add("alpha,a");
    add("beta,b");
    unsigned long index = 99;
    EXPECT_EQ(m_storage.findOption(Names{"b", "a"}, index), 0);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(m_storage.findOption(Names{"a", "b"}, index), 0);
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(m_storage.findOption(Names{"missing", "beta"}, index), 0);
    EXPECT_EQ(index, 1u);
}

TEST_F(Registry, FindOptionTakesTheEarliestRegisteredOwner) {
    add("first");
    add("second")->synonym("shared");
    add("third")->synonym("shared");
    unsigned long index = 99;
    EXPECT_EQ(m_storage.findOption(Names{"shared"}, index), 0);
    EXPECT_EQ(index, 1u);
}

TEST_F(Registry, EarlierBooleanNoFormBeatsLaterOwnName) {
    add("x", tarvo2::vt_bool);
    add("y")->synonym("no-x");
    unsigned long index = 99;
    EXPECT_EQ(m_storage.findOption(Names{"no-x"}, index), 0);
    EXPECT_EQ(index, 0u);
}

TEST_F(Registry, EarlierOwnNameBeatsLaterBooleanNoForm) {
    add("no-x");
    add("x", tarvo2::vt_bool);
    unsigned long index = 99;
    EXPECT_EQ(m_storage.findOption(Names{"no-x"}, index), 0);
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(m_storage.findOption(Names{"x"}, index), 0);
    EXPECT_EQ(index, 1u);
}

TEST_F(Registry, FindOptionReportsOneWhenNothingMatches) {
    add("alpha", tarvo2::vt_bool);
    unsigned long index = 0;
    EXPECT_EQ(m_storage.findOption(Names{"Alpha", "alph", "no-alph", "no-Alpha"}, index), 1);
    EXPECT_EQ(m_storage.findOption(Names{}, index), 1);
    RegisteredOptionStorage empty;
    EXPECT_EQ(empty.findOption(Names{"alpha"}, index), 1);
}

TEST_F(Registry, IsAddedAnswersForOneName) {
    add("quiet,q", tarvo2::vt_int);
    add("debug,d", tarvo2::vt_bool);
    unsigned long index = 99;
    EXPECT_EQ(quen_test::isAdded(m_storage, "q", index), 0);
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(quen_test::isAdded(m_storage, "debug", index), 0);
    EXPECT_EQ(index, 1u);
    index = 99;
    EXPECT_EQ(quen_test::isAdded(m_storage, "no-d", index), 0);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(quen_test::isAdded(m_storage, "no-quiet", index), 1);
    EXPECT_EQ(quen_test::isAdded(m_storage, "no-", index), 1);
    EXPECT_EQ(quen_test::isAdded(m_storage, "", index), 1);
}
