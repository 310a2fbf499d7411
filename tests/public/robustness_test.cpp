// Inputs that once crashed or misbehaved; each is kept as a regression test.
#include <gtest/gtest.h>

#include <string>

#include "quen_3_1/quen.h"

namespace {

struct Session {
    quen_3_1::IParser* parser = nullptr;
    quen_3_1::IParseResult* result = nullptr;

    explicit Session(int flags = 0) {
        quen_3_1::createParser(&parser, flags);
        parser->createResult(&result);
    }
    ~Session() {
        result->destroy();
        parser->destroy();
    }
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;
};

}  // namespace

TEST(Robustness, NamelessPositionalOptionFailsWithCodeFour) {
    Session s;
    s.parser->option("", "no names at all", tarvo2::vt_str, "g")->positional();
    EXPECT_EQ(s.parser->parseStream("value\n", s.result), 4);
    EXPECT_EQ(std::string(s.parser->getErrorDesc()), "Unidentified problem detected.");
}

TEST(Robustness, NamelessOptionWithDefaultIsSkippedByDefaults) {
    Session s;
    s.parser->option("", "no names at all", tarvo2::vt_str, "g")->defaultValue(tarvo2::variant_t("d"));
    char arg0[] = "prog";
    char* argv[] = {arg0};
    EXPECT_EQ(s.parser->parseArgsVector(1, argv, s.result), 0);
    EXPECT_EQ(s.result->get("").m_status, 1);
    EXPECT_FALSE(s.result->present(""));
}
