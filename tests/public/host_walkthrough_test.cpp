#include <gtest/gtest.h>

#include "quen_3_1/quen.h"

TEST(Smoke, ParsesOneOption) {
    quen_3_1::IParser* parser = nullptr;
    ASSERT_EQ(quen_3_1::createParser(&parser, quen_3_1::FlagUnknownIsError), 0);
    parser->option("log-file,lf", "Where to write the log", tarvo2::vt_str, "general:General options")
        ->defaultValue(tarvo2::variant_t("run.log"));
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    char arg0[] = "prog";
    char arg1[] = "--l-f=x.log";
    char* argv[] = {arg0, arg1};
    EXPECT_EQ(parser->parseArgsVector(2, argv, result), 0);
    EXPECT_STREQ(quen_3_1::getLastValue(result, "lf").as<char const*>(), "x.log");
    result->destroy();
    parser->destroy();
}
