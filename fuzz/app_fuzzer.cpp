// A program declared through App, of every kind of option and relation, given
// a fuzzed command line.
//
// Input: the first byte picks the program (bit 0: subcommands, nested, else
// positionals); the rest are the arguments, split at NUL and newline bytes, up
// to a 0xFF byte: what follows it is the text of an options file, named by one
// more argument.
//
// Checked: the exit code is 0 or 2 (never a declaration mistake); an error is
// one "PROGRAM: error: " line followed by the usage and the hint; a successful
// parse lists its entries in strictly increasing sequence order, each under a
// declared name, one option's entries being exactly its part of the list; the
// bound variables hold only what the ranges, allowed values, checks and
// relations let through; a copy of the result reads the same; an error in the
// options file names a line of it that holds an argument.
#include <quen_3_1/app.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "fuzz_support.h"

namespace {

using quen_fuzz::check;

// Every variable a program binds, with its default.
struct Variables {
    int jobs = 4;
    unsigned long long mask = 0;
    long long offset = 0;
    double ratio = 1.0;
    std::string mode = "fast";
    bool verbose = false;
    bool quiet = false;
    std::vector<std::string> tags;
    std::optional<int> limit;
    std::string secret;
    unsigned level = 0;
    std::vector<std::string> files;
    std::string target;
    std::string remoteName;
    std::string url;
    bool deep = false;
};

// The options every program has, at its top level.
void declareOptions(quen_3_1::App& app, Variables& v) {
    app.version("1.0").epilog("Fuzzed.").envPrefix("QUEN_APP_FUZZ_NEVER_SET");
    app.option("jobs,j", v.jobs, "Workers.").range(1, 64);
    app.option("mask", v.mask, "Bits.");
    app.option("offset", v.offset, "Where.").needs("mask");
    app.option("ratio", v.ratio, "How much.").check([](double const& value) {
        return std::isfinite(value) && value >= 0 ? std::string() : std::string("must be finite and not negative");
    });
    app.option("mode", v.mode, "How.").allow({"fast", "mirror", "slow-start"});
    app.option("verbose,v", v.verbose, "More.");
    app.option("quiet,q", v.quiet, "Less.").excludes("verbose");
    app.option("tag", v.tags, "Labels.").split(',');
    app.option("limit", v.limit, "At most.");
    app.option("secret", v.secret, "Hidden.").hidden();
    app.optionsFile("config", "Read options from this file.");
}

void declareCommands(quen_3_1::App& app, Variables& v) {
    quen_3_1::App& build = app.command("build", "Build a target.");
    build.option("level", v.level, "Optimisation.").range(0U, 3U);
    build.positional("target", v.target, "What to build.");
    quen_3_1::App& remote = app.command("remote", "Manage remotes.");
    remote.option("deep", v.deep, "Look deeper.");
    quen_3_1::App& add = remote.command("add-remote", "Add one.");
    add.positional("name", v.remoteName, "Its name.").required();
    add.positional("url", v.url, "Where it is.");
    app.command("check-sums", "Verify.");
}

void declarePositionals(quen_3_1::App& app, Variables& v) {
    app.positional("level", v.level, "First.");
    app.positional("files", v.files, "The rest.");
}

bool endsWith(std::string const& text, std::string const& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void checkError(quen_3_1::Result const& result) {
    std::string const& message = result.message();
    check(message.compare(0, 4, "prog") == 0, "an error begins with the program");
    std::size_t const lineEnd = message.find('\n');
    check(lineEnd != std::string::npos && message.find(": error: ") < lineEnd, "the first line is the error");
    check(endsWith(message, " --help' for more information.\n"), "an error ends with the hint");
}

// The options file of every input: one path, written anew each time.
std::string const& optionsFilePath() {
    static std::string const path =
        (std::filesystem::temp_directory_path() / ("quen_app_fuzz_" + std::to_string(getpid()) + ".opts")).string();
    return path;
}

// The text of line `number` (1-based) of `text`, or nothing when it has fewer lines.
std::optional<std::string> lineOf(std::string const& text, std::size_t number) {
    std::size_t start = 0;
    for (std::size_t line = 1; line < number; ++line) {
        start = text.find('\n', start);
        if (start == std::string::npos) {
            return std::nullopt;
        }
        ++start;
    }
    if (start >= text.size()) {
        return std::nullopt;
    }
    return text.substr(start, text.find('\n', start) - start);
}

// An error in the file names a line that holds an argument: not blank, not a comment.
void checkFileLine(std::string const& message, std::string const& text) {
    std::string const head = "prog: error: Options file '" + optionsFilePath() + "', line ";
    if (message.compare(0, head.size(), head) != 0) {
        return;
    }
    std::size_t const number = std::strtoul(message.c_str() + head.size(), nullptr, 10);
    std::optional<std::string> const line = lineOf(text, number);
    check(line.has_value(), "the line named is in the file");
    std::size_t const first = line->find_first_not_of(" \t\v\f\r");
    check(first != std::string::npos && (*line)[first] != '#' && (*line)[first] != ';',
          "the line named holds an argument");
}

void checkEntries(quen_3_1::Result const& result, std::set<std::string> const& names) {
    std::vector<quen_3_1::Entry> const& entries = result.entries();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        check(i == 0 || entries[i - 1].sequence < entries[i].sequence, "entries in increasing sequence order");
        check(names.count(entries[i].name) == 1, "every entry under a declared first name");
    }
    for (std::string const& name : names) {
        std::vector<quen_3_1::Entry> const own = result.entries(name);
        std::size_t next = 0;
        for (quen_3_1::Entry const& entry : entries) {
            if (entry.name == name) {
                check(next < own.size() && own[next].sequence == entry.sequence && own[next].text == entry.text,
                      "an option's entries are its part of the list");
                ++next;
            }
        }
        check(next == own.size(), "an option has no entry the list lacks");
        check(own.empty() || result.given(name), "an option with entries was given");
    }
}

void checkVariables(quen_3_1::Result const& result, Variables const& v, bool commands) {
    check(v.jobs >= 1 && v.jobs <= 64, "jobs within its range");
    check(!commands || v.level <= 3, "build's level within its range");
    check(v.mode == "fast" || v.mode == "mirror" || v.mode == "slow-start", "mode among the allowed values");
    check(std::isfinite(v.ratio) && v.ratio >= 0, "ratio passed its check");
    check(!(result.given("quiet") && result.given("verbose")), "quiet excludes verbose");
    check(!result.given("offset") || result.given("mask"), "offset needs mask");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 1) {
        return 0;
    }
    bool const commands = (data[0] & 1) != 0;
    std::uint8_t const* const end = data + size;
    std::uint8_t const* const cut = std::find(data + 1, end, std::uint8_t{0xFF});
    std::vector<std::string> args = quen_fuzz::splitArguments(data + 1, static_cast<std::size_t>(cut - data - 1));
    args.insert(args.begin(), "prog");
    std::string const fileText = cut == end ? std::string() : std::string(cut + 1, end);
    if (cut != end) {
        std::ofstream(optionsFilePath(), std::ios::binary) << fileText;
        args.push_back("--config=" + optionsFilePath());
    }
    std::vector<char const*> argv;
    for (std::string const& arg : args) {
        argv.push_back(arg.c_str());
    }
    argv.push_back(nullptr);

    Variables v;
    quen_3_1::App app("prog", "A fuzzed program.");
    declareOptions(app, v);
    if (commands) {
        declareCommands(app, v);
    } else {
        declarePositionals(app, v);
    }
    quen_3_1::Result const result = app.parse(static_cast<int>(args.size()), argv.data());
    int const code = result.exitCode();
    check(code == 0 || code == 2, "exit code 0 or 2");
    check(result.done() == (code != 0 || !result.message().empty()), "done after an error or a printed text");
    if (code == 2) {
        checkError(result);
        checkFileLine(result.message(), fileText);
    }
    if (!result.done()) {
        std::set<std::string> names{"jobs",  "mask",   "offset", "ratio", "mode",   "verbose", "quiet", "tag",
                                    "limit", "secret", "level",  "files", "target", "deep",    "name",  "url"};
        checkEntries(result, names);
        checkVariables(result, v, commands);
    }
    quen_3_1::Result const copy = result;
    check(copy.entries().size() == result.entries().size() && copy.message() == result.message() &&
              copy.command() == result.command() && copy.rest() == result.rest(),
          "a copy reads the same");
    return 0;
}
