// Large and hostile inputs, measured in one run: the cost of texts prepared to
// collide under the former table hash against random texts (within 2x), and
// the growth of time and peak memory from an input to one ten times its size.
// Linear growth gives about 10x for ten times the arguments; the bound of 20x
// leaves room for caches and for other processes on the machine, and still
// catches anything quadratic. The huge texts are compared with a quarter of
// their size (4x, bound 10x; quadratic work would take 16x): a tenth would fit
// in the processor's caches. The larger input's fresh pages cost more than the
// smaller one's reused ones, so linear work measures 4x to 8x here.
// Prints the figures; fails when a ratio or a memory bound is exceeded.
#include <quen_3_1/quen.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "measure.h"
#include "support/colliding_texts.h"

namespace {

using quen_stress::bestInTurns;
using quen_stress::check;
using quen_stress::peakMiBAbove;
using quen_stress::resetPeak;
using quen_stress::statusKiB;
using quen_stress::Times;

// One parser with a positional text option; everything is parsed, then every
// value and plain argument is read back through the result.
class Host {
public:
    Host() {
        quen_3_1::createParser(&m_parser, 0);
        m_parser->option("rest", "plain values", tarvo2::vt_str, "general")->positional();
    }
    Host(Host const&) = delete;
    Host& operator=(Host const&) = delete;
    ~Host() { m_parser->destroy(); }

    // Parses prog + `arguments`, reads all back; returns the values seen.
    std::size_t commandLine(std::vector<std::string>& arguments) {
        std::vector<char*> argv{const_cast<char*>("prog")};
        for (std::string& text : arguments) {
            argv.push_back(&text[0]);
        }
        return run([&](quen_3_1::IParseResult* result) {
            return m_parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
        });
    }

    std::size_t optionText(std::string const& text) {
        return run([&](quen_3_1::IParseResult* result) { return m_parser->parseStream(text.c_str(), result); });
    }

private:
    template <class Parse>
    std::size_t run(Parse parse) {
        quen_3_1::IParseResult* result = nullptr;
        m_parser->createResult(&result);
        std::size_t seen = 0;
        if (parse(result) == 0) {
            for (quen_3_1::Value v = result->get("rest"); v.m_status == 0; v = result->next("rest")) {
                ++seen;
            }
            char const* text = nullptr;
            for (int code = result->getFirstArgument(&text); code == 0; code = result->getNextArgument(&text)) {
                ++seen;
            }
        }
        result->destroy();
        return seen;
    }

    quen_3_1::IParser* m_parser = nullptr;
};

std::string asLines(std::vector<std::string> const& texts) {
    std::string text;
    for (std::string const& line : texts) {
        text += line;
        text += '\n';
    }
    return text;
}

// Half the texts fill the positional option, the other half follow "--".
std::vector<std::string> withTerminator(std::vector<std::string> texts) {
    texts.insert(texts.begin() + static_cast<std::ptrdiff_t>(texts.size() / 2), "--");
    return texts;
}

void craftedAgainstRandom() {
    std::size_t const count = 200000;
    std::vector<std::string> const crafted = quen_test::collidingTexts(count);
    std::vector<std::string> const random = quen_test::randomTexts(count, 7);
    std::string const craftedText = asLines(crafted);
    std::string const randomText = asLines(random);
    Host host;
    std::size_t seenCrafted = 0;
    std::size_t seenRandom = 0;
    auto measure = [&](std::vector<std::string> const& texts, std::string const& lines, std::size_t& seen) {
        return [&host, in = &texts, text = &lines, out = &seen] {
            std::vector<std::string> arguments = withTerminator(*in);
            *out = host.commandLine(arguments) + host.optionText(*text);
        };
    };
    Times const t = bestInTurns(3, measure(crafted, craftedText, seenCrafted), measure(random, randomText, seenRandom));
    double const tCrafted = t.first;
    double const tRandom = t.second;
    std::printf("200,000 sixteen-byte arguments (command line + option text, parsed and read back):\n");
    std::printf("  crafted for the former hash %.3f s, random %.3f s, ratio %.2f\n", tCrafted, tRandom,
                tCrafted / tRandom);
    check(seenCrafted == 2 * count && seenRandom == 2 * count, "every value read back");
    check(tCrafted <= 2.0 * tRandom, "crafted input within 2x of random input");
}

void argumentCount() {
    std::vector<std::string> const small = quen_test::randomTexts(100000, 11);
    std::vector<std::string> const large = quen_test::randomTexts(1000000, 13);
    Host host;
    std::size_t seen = 0;
    long const base = statusKiB("VmRSS");
    resetPeak();
    Times const t = bestInTurns(
        3,
        [&] {
            std::vector<std::string> arguments = withTerminator(small);
            seen = host.commandLine(arguments);
        },
        [&] {
            std::vector<std::string> arguments = withTerminator(large);
            seen = host.commandLine(arguments);
        });
    double const tSmall = t.first;
    double const tLarge = t.second;
    double const peak = peakMiBAbove(base);
    std::printf("arguments: 100,000 in %.3f s, 1,000,000 in %.3f s (ratio %.1f), peak +%.0f MiB\n", tSmall, tLarge,
                tLarge / tSmall, peak);
    check(seen == large.size(), "every argument read back");
    check(tLarge <= 20.0 * tSmall, "10x the arguments within 20x the time");
}

void oneLargeArgument() {
    std::size_t const mib = std::size_t{1} << 20;
    Host host;
    std::size_t seen = 0;
    std::vector<std::string> small{std::string(25 * mib, 'v')};
    std::vector<std::string> large{std::string(100 * mib, 'v')};
    long const base = statusKiB("VmRSS");
    resetPeak();
    Times const t = bestInTurns(
        3, [&] { seen = host.commandLine(small); }, [&] { seen = host.commandLine(large); });
    double const tSmall = t.first;
    double const tLarge = t.second;
    double const peak = peakMiBAbove(base);
    std::printf("one argument: 25 MiB in %.3f s, 100 MiB in %.3f s (ratio %.1f), peak +%.0f MiB over the input\n",
                tSmall, tLarge, tLarge / tSmall, peak);
    check(seen == 1, "the argument read back");
    check(tLarge <= 10.0 * tSmall, "4x the size within 10x the time");
    check(peak <= 8.0 * 100, "peak memory at most 8x the argument");
}

void largeOptionText() {
    std::size_t const mib = std::size_t{1} << 20;
    std::string const line = std::string(999, 'o') + "\n";
    auto textOf = [&](std::size_t size) {
        std::string text;
        text.reserve(size);
        while (text.size() + line.size() <= size) {
            text += line;
        }
        return text;
    };
    Host host;
    std::size_t seen = 0;
    std::string const small = textOf(50 * mib);
    std::string const large = textOf(200 * mib);
    long const base = statusKiB("VmRSS");
    resetPeak();
    Times const t = bestInTurns(
        3, [&] { seen = host.optionText(small); }, [&] { seen = host.optionText(large); });
    double const tSmall = t.first;
    double const tLarge = t.second;
    double const peak = peakMiBAbove(base);
    std::printf(
        "option text of 1,000-byte lines: 50 MiB in %.3f s, 200 MiB in %.3f s (ratio %.1f), "
        "peak +%.0f MiB over the text\n",
        tSmall, tLarge, tLarge / tSmall, peak);
    check(seen == large.size() / line.size(), "every line read back");
    check(tLarge <= 10.0 * tSmall, "4x the text within 10x the time");
    check(peak <= 6.0 * 200, "peak memory at most 6x the text");
}

}  // namespace

int main() {
    quen_stress::sameMemoryCostForAllSizes();
    craftedAgainstRandom();
    argumentCount();
    oneLargeArgument();
    largeOptionText();
    std::printf("%s\n", quen_stress::failures() == 0 ? "stress: all checks passed" : "stress: FAILED");
    return quen_stress::failures() == 0 ? 0 : 1;
}
