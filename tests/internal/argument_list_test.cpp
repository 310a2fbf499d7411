// The arguments recognizers work through: views of a host's texts or of an
// option text, each followed by a NUL, or texts of the list's own.
#include "recognizers/argument_list.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "frontend/option_text_lines.h"

namespace {

using quen_3_1::ArgumentList;

TEST(ArgumentList, LinesOfATextAreViewsEndedByANul) {
    std::string const text = "  -a\r\n#c\n;d\n\n-b=1\r\r\nlast";
    ArgumentList list(text, quen_3_1::argumentSpansOfText(text));
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0], "-a");
    EXPECT_EQ(list[1], "-b=1");
    EXPECT_EQ(list[2], "last");
    EXPECT_STREQ(list[0].data(), "-a");
    EXPECT_STREQ(list[1].data(), "-b=1");
    EXPECT_STREQ(list[2].data(), "last");
}

TEST(ArgumentList, SpansOfATextPointIntoIt) {
    using Spans = std::vector<std::pair<std::size_t, std::size_t>>;
    EXPECT_EQ(quen_3_1::argumentSpansOfText(" x\r\n# y\nzz"), Spans({{1, 1}, {8, 2}}));
    EXPECT_EQ(quen_3_1::argumentSpansOfText("\r\n\n"), Spans());
}

TEST(ArgumentList, HostTextsAreNotCopied) {
    char first[] = "--level=3";
    char second[] = "plain";
    ArgumentList list(std::vector<std::string_view>{first, second});
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].data(), first);
    list.popFront();
    EXPECT_EQ(list[0].data(), second);
    list.popFront();
    EXPECT_TRUE(list.empty());
}

TEST(ArgumentList, OwnedTextsKeepTheirNulCharacters) {
    ArgumentList list(std::vector<std::string>{std::string("a\0b", 3), ""});
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0], std::string_view("a\0b", 3));
    EXPECT_EQ(list[1], "");
    EXPECT_EQ(list[1].data()[0], '\0');
}

}  // namespace
