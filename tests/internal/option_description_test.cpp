// One option's description: its state right after registration, the chaining
// setters the host refines it with, and deep copies.
#include "options/option_description.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "frontend/trace.h"
#include "options/registered_option_storage.h"
#include "support/internal_fixture.h"
#include "support/name_texts.h"
#include "values/garbage.h"

using quen_3_1::Garbage;
using quen_3_1::IOption;
using quen_3_1::OptionDescription;
using quen_3_1::RegisteredOptionStorage;
using tarvo2::variant_t;

namespace {

using Names = std::vector<std::string>;

class OptionDescriptionTest : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        m_storage.setGarbage(&m_keeper);
    }

    // Registers one option and gives both the host's pointer and the stored description.
    IOption* declare(char const* names, tarvo2::kel_variant_type_t type) {
        IOption* const option = m_storage.option(names, "Help text", type, "general:General options");
        EXPECT_EQ(m_storage.size(), 1u);
        return option;
    }

    OptionDescription const& stored() const { return m_storage.at(0); }

    Garbage m_keeper;
    RegisteredOptionStorage m_storage;
};

}  // namespace

TEST_F(OptionDescriptionTest, FieldsRightAfterRegistration) {
    IOption* const option = declare("log-file,lf", tarvo2::vt_str);
    OptionDescription const& d = stored();
    EXPECT_EQ(option, static_cast<IOption const*>(&d));
    EXPECT_EQ(d.status(), 0);
    EXPECT_EQ(quen_test::namesOf(d), (Names{"log-file", "lf"}));
    EXPECT_EQ(d.primaryName(), "log-file");
    EXPECT_EQ(d.group(), "general");
    EXPECT_EQ(d.groupTitle(), "General options");
    EXPECT_EQ(d.description(), "Help text");
    EXPECT_FALSE(d.isPositional());
    EXPECT_FALSE(d.hasDefault());
    EXPECT_EQ(d.tokenizer(), ',');
    EXPECT_EQ(d.type(), tarvo2::vt_str);
    EXPECT_EQ(d.getDefault().m_type, tarvo2::vt_empty);
    EXPECT_TRUE(d.allowedValues().empty());
    EXPECT_EQ(d.garbage(), &m_keeper);
}

TEST_F(OptionDescriptionTest, AnyKindCodeIsKeptAsDeclared) {
    declare("wide", tarvo2::vt_wstr);
    EXPECT_EQ(stored().type(), tarvo2::vt_wstr);
}

TEST_F(OptionDescriptionTest, EverySetterReturnsTheSameOption) {
    IOption* const option = declare("level", tarvo2::vt_int);
    EXPECT_EQ(option->synonym("lvl"), option);
    EXPECT_EQ(option->allowValue(variant_t(1)), option);
    EXPECT_EQ(option->defaultValue(variant_t(1)), option);
    EXPECT_EQ(option->tokenize(';'), option);
    EXPECT_EQ(option->positional(), option);
}

TEST_F(OptionDescriptionTest, SettersChain) {
    declare("level", tarvo2::vt_int)
        ->synonym("lvl")
        ->allowValue(variant_t(1))
        ->allowValue(variant_t(2))
        ->defaultValue(variant_t(2))
        ->tokenize(0)
        ->positional();
    OptionDescription const& d = stored();
    EXPECT_EQ(quen_test::namesOf(d), (Names{"level", "lvl"}));
    ASSERT_EQ(d.allowedValues().size(), 2u);
    EXPECT_EQ(d.allowedValues()[0].as<int>(), 1);
    EXPECT_EQ(d.allowedValues()[1].as<int>(), 2);
    EXPECT_TRUE(d.hasDefault());
    EXPECT_EQ(d.getDefault().as<int>(), 2);
    EXPECT_EQ(d.tokenizer(), '\0');
    EXPECT_TRUE(d.isPositional());
}

TEST_F(OptionDescriptionTest, SynonymAppendsWithoutDuplicateCheck) {
    IOption* const option = declare("verbose,v", tarvo2::vt_bool);
    option->synonym("talk")->synonym("v")->synonym("");
    EXPECT_EQ(quen_test::namesOf(stored()), (Names{"verbose", "v", "talk", "v", ""}));
    EXPECT_EQ(stored().primaryName(), "verbose");
}

TEST_F(OptionDescriptionTest, SynonymOfNullThrowsLogicError) {
    IOption* const option = declare("name", tarvo2::vt_str);
    EXPECT_THROW(option->synonym(nullptr), std::logic_error);
    EXPECT_EQ(quen_test::namesOf(stored()), (Names{"name"}));
}

TEST_F(OptionDescriptionTest, TokenizeSetsAndClearsTheSplitCharacter) {
    IOption* const option = declare("list", tarvo2::vt_str);
    option->tokenize(':');
    EXPECT_EQ(stored().tokenizer(), ':');
    option->tokenize(0);
    EXPECT_EQ(stored().tokenizer(), '\0');
    option->tokenize(',');
    EXPECT_EQ(stored().tokenizer(), ',');
}

TEST_F(OptionDescriptionTest, PositionalStaysOn) {
    IOption* const option = declare("file", tarvo2::vt_str);
    option->positional();
    option->positional();
    EXPECT_TRUE(stored().isPositional());
}

TEST_F(OptionDescriptionTest, DefaultValueTwiceKeepsTheSecond) {
    IOption* const option = declare("mode", tarvo2::vt_str);
    option->defaultValue(variant_t("first"));
    option->defaultValue(variant_t("second"));
    EXPECT_TRUE(stored().hasDefault());
    EXPECT_EQ(stored().getDefault().m_type, tarvo2::vt_str);
    EXPECT_STREQ(stored().getDefault().as<char const*>(), "second");
}

TEST_F(OptionDescriptionTest, DefaultValueIsADeepCopy) {
    IOption* const option = declare("mode", tarvo2::vt_str);
    auto source = std::make_unique<variant_t>("fast");
    option->defaultValue(*source);
    EXPECT_NE(stored().getDefault().as<char const*>(), source->as<char const*>());
    source.reset();
    EXPECT_STREQ(stored().getDefault().as<char const*>(), "fast");
}

TEST_F(OptionDescriptionTest, DefaultOfAnotherKindIsKept) {
    IOption* const option = declare("count", tarvo2::vt_int);
    option->defaultValue(variant_t("not a number"));
    EXPECT_TRUE(stored().hasDefault());
    EXPECT_EQ(stored().getDefault().m_type, tarvo2::vt_str);
}

TEST_F(OptionDescriptionTest, AllowValueAppendsDeepCopiesInOrder) {
    IOption* const option = declare("mode", tarvo2::vt_str);
    variant_t const fast("fast");
    option->allowValue(fast)->allowValue(variant_t("full"))->allowValue(variant_t::str_ref("small"));
    ASSERT_EQ(stored().allowedValues().size(), 3u);
    EXPECT_NE(stored().allowedValues()[0].as<char const*>(), fast.as<char const*>());
    EXPECT_STREQ(stored().allowedValues()[0].as<char const*>(), "fast");
    EXPECT_STREQ(stored().allowedValues()[1].as<char const*>(), "full");
    EXPECT_EQ(stored().allowedValues()[2].m_type, tarvo2::vt_str_ref);
    EXPECT_STREQ(stored().allowedValues()[2].as<char const*>(), "small");
}

TEST_F(OptionDescriptionTest, AllowValueOfAnotherKindIsAccepted) {
    IOption* const option = declare("mode", tarvo2::vt_str);
    EXPECT_EQ(option->allowValue(variant_t(5)), option);
    ASSERT_EQ(stored().allowedValues().size(), 1u);
    EXPECT_EQ(stored().allowedValues()[0].m_type, tarvo2::vt_int);
    EXPECT_EQ(stored().allowedValues()[0].as<int>(), 5);
}

TEST(OptionDescriptionCopy, CopyOwnsItsTextDefaultAndAllowedValues) {
    Garbage keeper;
    auto original = std::make_unique<OptionDescription>(Names{"mode", "m"}, "general", "General options", "How to run",
                                                        tarvo2::vt_str, &keeper);
    original->defaultValue(variant_t("fast"))->allowValue(variant_t("fast"))->allowValue(variant_t("small"));
    original->tokenize(';')->positional();
    original->setStatus(3);
    OptionDescription const copy(*original);
    EXPECT_NE(copy.getDefault().as<char const*>(), original->getDefault().as<char const*>());
    EXPECT_NE(copy.allowedValues()[0].as<char const*>(), original->allowedValues()[0].as<char const*>());
    original.reset();
    EXPECT_EQ(copy.status(), 3);
    EXPECT_EQ(quen_test::namesOf(copy), (Names{"mode", "m"}));
    EXPECT_EQ(copy.group(), "general");
    EXPECT_EQ(copy.groupTitle(), "General options");
    EXPECT_EQ(copy.description(), "How to run");
    EXPECT_TRUE(copy.isPositional());
    EXPECT_TRUE(copy.hasDefault());
    EXPECT_EQ(copy.tokenizer(), ';');
    EXPECT_EQ(copy.type(), tarvo2::vt_str);
    EXPECT_STREQ(copy.getDefault().as<char const*>(), "fast");
    ASSERT_EQ(copy.allowedValues().size(), 2u);
    EXPECT_STREQ(copy.allowedValues()[0].as<char const*>(), "fast");
    EXPECT_STREQ(copy.allowedValues()[1].as<char const*>(), "small");
    EXPECT_EQ(copy.garbage(), &keeper);
}

TEST(OptionDescriptionCopy, AssignmentOwnsItsTextDefault) {
    Garbage keeper;
    OptionDescription target(Names{"other"}, "", "", "", tarvo2::vt_int, nullptr);
    target.defaultValue(variant_t("replaced"));
    {
        OptionDescription source(Names{"mode"}, "g", "t", "d", tarvo2::vt_str, &keeper);
        source.defaultValue(variant_t("kept"));
        target = source;
        EXPECT_NE(target.getDefault().as<char const*>(), source.getDefault().as<char const*>());
    }
    EXPECT_EQ(quen_test::namesOf(target), (Names{"mode"}));
    EXPECT_EQ(target.type(), tarvo2::vt_str);
    EXPECT_STREQ(target.getDefault().as<char const*>(), "kept");
    EXPECT_EQ(target.garbage(), &keeper);
}

// A registered option's description lies in its registry's storage; a copy
// keeps its own, so it still reads after the registry is gone.
TEST(OptionDescriptionCopy, CopyOfARegisteredOptionOutlivesTheRegistry) {
    Garbage keeper;
    auto registry = std::make_unique<RegisteredOptionStorage>();
    registry->setGarbage(&keeper);
    std::string description = "Where to write the log";
    registry->option("log-file,lf", description.c_str(), tarvo2::vt_str, "general:General options");
    description.assign("changed by the host");
    EXPECT_EQ(registry->at(0).description(), "Where to write the log");
    OptionDescription const copy(registry->at(0));
    registry.reset();
    EXPECT_EQ(copy.description(), "Where to write the log");
    EXPECT_EQ(quen_test::namesOf(copy), (Names{"log-file", "lf"}));
    EXPECT_EQ(copy.group(), "general");
}

TEST(OptionDescriptionPlaceholder, HasNoNamesKindEmptyAndNoKeeper) {
    OptionDescription const placeholder;
    EXPECT_TRUE(placeholder.names().empty());
    EXPECT_EQ(placeholder.group(), "");
    EXPECT_EQ(placeholder.groupTitle(), "");
    EXPECT_EQ(placeholder.description(), "");
    EXPECT_EQ(placeholder.tokenizer(), ',');
    EXPECT_EQ(placeholder.type(), tarvo2::vt_empty);
    EXPECT_EQ(placeholder.getDefault().m_type, tarvo2::vt_empty);
    EXPECT_TRUE(placeholder.allowedValues().empty());
    EXPECT_FALSE(placeholder.isPositional());
    EXPECT_FALSE(placeholder.hasDefault());
    EXPECT_EQ(placeholder.garbage(), nullptr);
}
