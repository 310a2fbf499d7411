// The application layer under large and hostile inputs, measured in one run
// like the library's own stress test: the time of an input against one four or
// ten times its size, for a command line, for the options an App declares, and
// for an options file that fails at its last line (whose line is searched for).
// Linear growth gives about 4x (bound 10x) or 10x (bound 20x); work by the
// square of the size would take 16x or 100x.
// Prints the figures; fails when a ratio is exceeded or a result is wrong.
#include <quen_3_1/app.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "measure.h"
#include "support/app_harness.h"

namespace {

using quen_stress::bestInTurns;
using quen_stress::check;
using quen_stress::Times;
using quen_test::parseLine;

// One case at two sizes, in turns: `run` answers whether the result was right. Prints the
// times, then checks the results and that the time grew at most `bound` times.
struct Growth {
    char const* what;  // printed before the sizes
    std::size_t small;
    std::size_t large;
    double bound;
    char const* right;   // the check of the results
    char const* within;  // the check of the ratio
};

void measure(Growth const& g, std::function<bool(std::size_t)> const& run) {
    bool small = false;
    bool large = false;
    Times const t = bestInTurns(
        3, [&] { small = run(g.small); }, [&] { large = run(g.large); });
    std::printf("App %s: %zu in %.3f s, %zu in %.3f s (ratio %.1f)\n", g.what, g.small, t.first, g.large, t.second,
                t.second / t.first);
    check(small && large, g.right);
    check(t.second <= g.bound * t.first, g.within);
}

// Options of each kind and a plain argument, over and over, then "--" and arguments that
// look like options, which only the positional takes. Whether every value arrived.
bool commandLine(std::size_t count) {
    std::vector<std::string> arguments;
    std::size_t rounds = 0;
    for (; arguments.size() < count / 2; ++rounds) {
        arguments.push_back("--level=" + std::to_string(rounds % 1000));
        arguments.push_back("--tag");
        arguments.push_back("t" + std::to_string(rounds));
        arguments.push_back("--verbose");
        arguments.push_back("file" + std::to_string(rounds));
    }
    arguments.emplace_back("--");
    std::size_t const late = count - arguments.size();
    while (arguments.size() < count) {
        arguments.push_back("-late" + std::to_string(arguments.size()));
    }
    quen_3_1::App app("prog");
    std::vector<int> levels;
    std::vector<std::string> tags;
    bool verbose = false;
    std::vector<std::string> files;
    app.option("level", levels, "Levels.");
    app.option("tag", tags, "Tags.");
    app.option("verbose", verbose, "More.");
    app.positional("files", files, "Files.");
    std::string const last = arguments.back();
    quen_3_1::Result const result = parseLine(app, std::move(arguments));
    // Each round gives four entries (the flag's included); each late argument one, a file.
    return result.exitCode() == 0 && result.entries().size() == 4 * rounds + late && levels.size() == rounds &&
           tags.size() == rounds && verbose && files.size() == rounds + late && files.back() == last &&
           result.rest().empty();
}

// An App of `count` options, declared and given 100 of them.
bool manyOptions(std::size_t count) {
    quen_3_1::App app("prog");
    std::vector<int> values(count);
    for (std::size_t k = 0; k < count; ++k) {
        app.option("option-" + std::to_string(k), values[k], "One of many.");
    }
    std::vector<std::string> arguments;
    for (std::size_t j = 0; j < 100; ++j) {
        arguments.push_back("--option-" + std::to_string(j * (count / 100)) + "=" + std::to_string(j + 1));
    }
    quen_3_1::Result const result = parseLine(app, std::move(arguments));
    return result.exitCode() == 0 && result.entries().size() == 100 && values[(count / 100) * 99] == 100;
}

std::string writeFailingFile(std::size_t lines) {
    std::string const path = (std::filesystem::temp_directory_path() /
                              ("quen_app_stress_" + std::to_string(getpid()) + "_" + std::to_string(lines) + ".opts"))
                                 .string();
    std::ofstream file(path);
    for (std::size_t i = 0; i < lines; ++i) {
        file << "--level=" << i % 1000 << '\n';
    }
    file << "--nothing\n";
    return path;
}

// The error's line is found by parsing beginnings of the file again.
bool failsAtItsLastLine(std::string const& path, std::size_t lines) {
    quen_3_1::App app("prog");
    std::vector<int> levels;
    app.option("level", levels, "Levels.");
    app.optionsFile("config", "Options from a file.");
    quen_3_1::Result const result = parseLine(app, {"--config=" + path});
    std::string const expected =
        "prog: error: Options file '" + path + "', line " + std::to_string(lines + 1) + ": Unknown option: --nothing\n";
    return result.exitCode() == 2 && result.message().compare(0, expected.size(), expected) == 0;
}

void failingOptionsFile() {
    Growth const g{"options file failing at its last line, lines",
                   25000,
                   100000,
                   10.0,
                   "the error names the last line",
                   "4x the lines within 10x the time"};
    std::string const small = writeFailingFile(g.small);
    std::string const large = writeFailingFile(g.large);
    measure(g, [&](std::size_t lines) { return failsAtItsLastLine(lines == g.small ? small : large, lines); });
    std::filesystem::remove(small);
    std::filesystem::remove(large);
}

}  // namespace

int main() {
    quen_stress::sameMemoryCostForAllSizes();
    measure({"command line, arguments", 100000, 1000000, 20.0, "every value read back",
             "10x the arguments within 20x the time"},
            commandLine);
    measure({"declaring and parsing, options", 10000, 100000, 20.0, "every given option read back",
             "10x the options within 20x the time"},
            manyOptions);
    failingOptionsFile();
    std::printf("%s\n", quen_stress::failures() == 0 ? "app stress: all checks passed" : "app stress: FAILED");
    return quen_stress::failures() == 0 ? 0 : 1;
}
