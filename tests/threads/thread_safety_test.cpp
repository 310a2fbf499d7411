// Independent parsers on different threads: every result gets unique,
// increasing sequence numbers, and a thread that traces never makes another
// thread's parse print its arguments. Built with ThreadSanitizer in CI.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "quen_3_1/app.h"
#include "support/internal_fixture.h"

using quen_3_1::BasicParser;
using quen_3_1::ParseResult;

namespace {

constexpr int kThreads = 8;
constexpr char kTraceSwitch[] = "quenoption=quenlogenable=1";

// Parses per thread; QUEN_THREAD_ROUNDS raises it for a longer run.
int rounds() {
    char const* const text = std::getenv("QUEN_THREAD_ROUNDS");
    return text != nullptr ? std::atoi(text) : 2000;
}

// Every number one parse of `result` handed out, in command-line order: the
// tag's occurrence and its three values, the password's occurrence and value,
// the positional's, then the plain argument after "--".
std::vector<std::int32_t> numbersInOrder(ParseResult& result) {
    std::vector<std::int32_t> numbers;
    for (char const* name : {"tag", "password", "rest"}) {
        quen_3_1::OptionData const& data = quen_test::storedOptions(result).at(name);
        numbers.insert(numbers.end(), data.m_positions.begin(), data.m_positions.end());
        for (quen_3_1::ValueEntry const& entry : data.m_values) {
            numbers.push_back(entry.second);
        }
    }
    for (auto const& argument : result.arguments()) {
        numbers.push_back(argument.second);
    }
    return numbers;
}

bool uniqueAndIncreasing(std::vector<std::int32_t> const& numbers) {
    for (std::size_t i = 1; i < numbers.size(); ++i) {
        if (numbers[i] <= numbers[i - 1]) {
            return false;
        }
    }
    return true;
}

// One thread's work: its own parser, a fresh result per parse. Thread 0
// traces every parse.
void work(int thread, int count, int& failures) {
    BasicParser parser(0);
    parser.option("tag", "help", tarvo2::vt_str, "general")->tokenize(',');
    parser.option("password", "help", tarvo2::vt_str, "general");
    parser.option("rest", "help", tarvo2::vt_str, "general")->positional();
    std::string const secret = "--password=SECRET" + std::to_string(thread);
    for (int i = 0; i < count; ++i) {
        std::vector<std::string> texts{"prog", "--tag=a,b,c", secret, "plain", "--", "after"};
        if (thread == 0) {
            texts.insert(texts.begin() + 1, kTraceSwitch);
        }
        std::vector<char*> argv;
        for (std::string& text : texts) {
            argv.push_back(&text[0]);
        }
        ParseResult result;
        int const code = parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), &result);
        std::vector<std::int32_t> const numbers = numbersInOrder(result);
        if (code != 0 || numbers.size() != 9 || !uniqueAndIncreasing(numbers)) {
            ++failures;
        }
    }
}

// One thread's work through the application layer: its own App per parse,
// values bound to its own variables, entries in increasing order.
void workThroughApp(int thread, int count, int& failures) {
    std::string const tag = "t" + std::to_string(thread);
    for (int i = 0; i < count; ++i) {
        quen_3_1::App app("prog");
        int jobs = 1;
        std::vector<std::string> files;
        app.option("jobs,j", jobs, "Copies at once.").range(1, 64);
        app.positional("files", files, "What to copy.");
        char const* const argv[] = {"prog", "--jobs=8", tag.c_str(), "b", "--j", "9"};
        quen_3_1::Result const result = app.parse(6, argv);
        std::vector<quen_3_1::Entry> const& entries = result.entries();
        bool ordered = entries.size() == 4;
        for (std::size_t e = 1; ordered && e < entries.size(); ++e) {
            ordered = entries[e].sequence > entries[e - 1].sequence;
        }
        if (result.done() || jobs != 9 || files != std::vector<std::string>{tag, "b"} || !ordered) {
            ++failures;
        }
    }
}

}  // namespace

TEST(ThreadSafety, AppsOnDifferentThreadsParseOnTheirOwn) {
    int const count = rounds() / 10;
    std::vector<int> failures(kThreads, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back(workThroughApp, t, count, std::ref(failures[static_cast<std::size_t>(t)]));
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (int t = 0; t < kThreads; ++t) {
        EXPECT_EQ(failures[static_cast<std::size_t>(t)], 0) << "thread " << t;
    }
}

TEST(ThreadSafety, IndependentParsersNumberAndTraceOnTheirOwn) {
    int const count = rounds();
    std::vector<int> failures(kThreads, 0);
    quen_test::FdCapture capture(1);
    {
        std::vector<std::thread> threads;
        for (int t = 0; t < kThreads; ++t) {
            threads.emplace_back(work, t, count, std::ref(failures[static_cast<std::size_t>(t)]));
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    std::string const trace = capture.finish();
    for (int t = 0; t < kThreads; ++t) {
        EXPECT_EQ(failures[static_cast<std::size_t>(t)], 0) << "thread " << t;
    }
    EXPECT_NE(trace.find("SECRET0"), std::string::npos);
    for (int t = 1; t < kThreads; ++t) {
        EXPECT_EQ(trace.find("SECRET" + std::to_string(t)), std::string::npos) << "thread " << t;
    }
}
