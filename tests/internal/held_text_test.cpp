// A description's text: viewed in its registry's storage while it is the
// registry's, owned by every copy, so that a copy outlives the registry.
#include "options/held_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using quen_3_1::HeldText;

TEST(HeldText, EmptyByDefault) { EXPECT_EQ(HeldText().view(), ""); }

TEST(HeldText, OwnedTextIsKept) {
    std::string text = "Where to write the log";
    HeldText const held(text);
    text.assign("changed");
    EXPECT_EQ(held.view(), "Where to write the log");
}

TEST(HeldText, ViewedTextIsNotCopied) {
    std::string const storage = "Help text";
    HeldText const held = HeldText::viewing(storage);
    EXPECT_EQ(held.view().data(), storage.data());
    EXPECT_EQ(held.view(), "Help text");
}

TEST(HeldText, CopyOwnsWhatTheOriginalViewed) {
    std::string storage = "Help text";
    HeldText const viewed = HeldText::viewing(storage);
    HeldText const copy(viewed);
    HeldText assigned;
    assigned = viewed;
    storage.assign("overwritten");
    EXPECT_EQ(copy.view(), "Help text");
    EXPECT_EQ(assigned.view(), "Help text");
    EXPECT_NE(copy.view().data(), storage.data());
}

TEST(HeldText, MoveKeepsViewing) {
    std::string const storage = "Help text";
    HeldText viewed = HeldText::viewing(storage);
    HeldText const moved(std::move(viewed));
    EXPECT_EQ(moved.view().data(), storage.data());
}

TEST(HeldText, AssigningToItselfKeepsTheText) {
    HeldText held(std::string("How to run"));
    HeldText& same = held;
    held = same;
    EXPECT_EQ(held.view(), "How to run");
}
