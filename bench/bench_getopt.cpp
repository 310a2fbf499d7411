// The floor: getopt_long finds the options and their value texts (it converts
// nothing and keeps nothing), with its own prefix matching of whole names.
#include <getopt.h>

#include <cstring>
#include <string>
#include <vector>

#include "workloads.h"

namespace qbench {

namespace {

// getopt_long returns the option's index offset past every character code.
int const kFirstCode = 256;

std::vector<option> declare(Workload const& w) {
    std::vector<option> table;
    table.reserve(w.options.size() + 1);
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        int const has = w.options[k].kind == Kind::Flag ? no_argument : required_argument;
        table.push_back({w.options[k].name.c_str(), has, nullptr, kFirstCode + static_cast<int>(k)});
    }
    table.push_back({nullptr, 0, nullptr, 0});
    return table;
}

// The value texts of each option, in command-line order.
bool find(benchmark::State& state, CommandLine& line, std::vector<option> const& table,
          std::vector<std::vector<char const*>>& found) {
    for (std::vector<char const*>& texts : found) {
        texts.clear();
    }
    optind = 0;
    opterr = 0;
    int index = 0;
    for (;;) {
        int const code = getopt_long(line.argc(), line.argv(), "", table.data(), &index);
        if (code == -1) {
            return true;
        }
        if (code < kFirstCode) {
            state.SkipWithError("getopt_long: unknown or ambiguous option");
            return false;
        }
        found[static_cast<std::size_t>(code - kFirstCode)].push_back(optarg);
    }
}

Checksum readBack(Workload const& w, std::vector<std::vector<char const*>> const& found) {
    Checksum sum;
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        if (found[k].empty()) {
            sum.addAbsent();
        }
        for (char const* text : found[k]) {
            if (w.options[k].kind == Kind::Flag) {
                sum.addFlag();
            } else {
                sum.addText(text, std::strlen(text));
            }
        }
    }
    return sum;
}

void startup(benchmark::State& state) {
    Workload const w = startupWorkload();
    CommandLine line(w);
    Checksum const expected = expectedTexts(w);
    for (auto _ : state) {
        std::vector<option> const table = declare(w);
        std::vector<std::vector<char const*>> found(w.options.size());
        if (!find(state, line, table, found) || !verify(state, readBack(w, found), expected)) {
            break;
        }
    }
}

void commandLine(benchmark::State& state, Workload const& w) {
    CommandLine line(w);
    Checksum const expected = expectedTexts(w);
    std::vector<option> const table = declare(w);
    std::vector<std::vector<char const*>> found(w.options.size());
    for (auto _ : state) {
        if (!find(state, line, table, found) || !verify(state, readBack(w, found), expected)) {
            break;
        }
    }
}

}  // namespace

void registerGetopt() {
    char const* const lib = "getopt_long";
    add("W1", lib, 1, startup);
    add("W2/N=1000", lib, 1000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(1000)); });
    add("W2/N=10000", lib, 10000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(10000)); });
    add("W2/N=100000", lib, 100000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(100000)); });
    add("W3/M=1000", lib, 100, [](benchmark::State& s) { commandLine(s, manyOptionsWorkload(1000)); });
    add("W5/log-f", lib, 1000, [](benchmark::State& s) { commandLine(s, abbreviationWorkload(1000, false)); });
}

}  // namespace qbench
