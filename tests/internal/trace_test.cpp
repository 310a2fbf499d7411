// The trace stream follows the process-wide switch: standard output while it
// is on, one reused discarding stream while it is off. The console helpers
// pass texts through as bytes.
#include "frontend/trace.h"

#include <gtest/gtest.h>

#include <iostream>
#include <ostream>
#include <string>

#include "frontend/ustring.h"
#include "support/capture.h"
#include "support/internal_fixture.h"

using quen_3_1::internal::quenLog;
using quen_3_1::internal::quenLogEnabled;
using quen_test::FdCapture;

namespace {

class Trace : public quen_test::InternalTest {};

}  // namespace

TEST_F(Trace, DiscardsEverythingWhileSwitchedOff) {
    FdCapture out(1);
    quenLog() << "AbbreviationParser: recognizing argument '--x'" << std::endl;
    quenLog() << "ignoring " << 42 << std::endl;
    EXPECT_EQ(out.finish(), "");
}

TEST_F(Trace, WritesToStandardOutputWhileSwitchedOn) {
    quenLogEnabled = true;
    FdCapture out(1);
    quenLog() << "AbbreviationParser: recognizing argument '--x'" << std::endl;
    quenLog() << "parse result: " << 2 << ", message: " << std::endl;
    EXPECT_EQ(out.finish(), "AbbreviationParser: recognizing argument '--x'\nparse result: 2, message: \n");
}

TEST_F(Trace, SwitchedOnStreamIsTheConsoleStream) {
    quenLogEnabled = true;
    EXPECT_EQ(&quenLog(), &ORNA_2_10::strings::tv2::ucout);
    EXPECT_EQ(&quenLog(), &std::cout);
}

// The library names the two streams without the header that builds them at
// load; they must still be the process's own.
TEST_F(Trace, ConsoleStreamsAreTheStandardOnes) {
    EXPECT_EQ(&ORNA_2_10::strings::tv2::console(), &std::cout);
    EXPECT_EQ(&ORNA_2_10::strings::tv2::consoleError(), &std::cerr);
    EXPECT_EQ(&ORNA_2_10::strings::tv2::ucout, &std::cout);
}

TEST_F(Trace, DiscardingStreamIsCreatedOnceAndReused) {
    std::ostream& first = quenLog();
    std::ostream& second = quenLog();
    EXPECT_EQ(&first, &second);
    EXPECT_NE(&first, &std::cout);
    quenLogEnabled = true;
    EXPECT_NE(&quenLog(), &first);
    quenLogEnabled = false;
    EXPECT_EQ(&quenLog(), &first);
}

TEST_F(Trace, SameCallSiteFollowsTheSwitchEachTime) {
    FdCapture out(1);
    for (bool on : {false, true, false, true, false}) {
        quenLogEnabled = on;
        quenLog() << (on ? "shown" : "hidden") << std::endl;
    }
    EXPECT_EQ(out.finish(), "shown\nshown\n");
}

TEST_F(Trace, DiscardingStreamStaysQuietAfterManyWrites) {
    FdCapture out(1);
    for (int i = 0; i < 1000; ++i) {
        quenLog() << "line " << i << std::endl;
    }
    EXPECT_EQ(out.finish(), "");
}

TEST_F(Trace, DiscardingStreamFailsEveryWrite) {
    FdCapture out(1);
    std::ostream& stream = quenLog();
    stream << "discarded" << std::endl;
    EXPECT_TRUE(stream.bad());
    EXPECT_EQ(out.finish(), "");
}

TEST(ConsoleText, ToUstringPassesAsciiUnchanged) {
    EXPECT_EQ(ORNA_2_10::strings::tv2::to_ustring("--level=3\nfile name"), "--level=3\nfile name");
}

TEST(ConsoleText, ToUstringPassesOtherBytesUnchanged) {
    char const bytes[] = "caf\xc3\xa9 \xff\x80\x01";
    EXPECT_EQ(ORNA_2_10::strings::tv2::to_ustring(bytes), std::string(bytes));
    EXPECT_EQ(ORNA_2_10::strings::tv2::to_ustring(bytes).size(), 9u);
}

TEST(ConsoleText, ToUstringOfNullIsEmpty) { EXPECT_EQ(ORNA_2_10::strings::tv2::to_ustring(nullptr), ""); }

TEST(ConsoleText, ToUstringOfEmptyIsEmpty) { EXPECT_EQ(ORNA_2_10::strings::tv2::to_ustring(""), ""); }

TEST(ConsoleText, ToUtf8PassesBytesUnchanged) {
    EXPECT_EQ(ORNA_2_10::strings::tv2::to_utf8("verbose"), "verbose");
    std::string const bytes("a\0b\xc3\xa9\xfe", 6);
    EXPECT_EQ(ORNA_2_10::strings::tv2::to_utf8(bytes), bytes);
    EXPECT_EQ(ORNA_2_10::strings::tv2::to_utf8(""), "");
}
