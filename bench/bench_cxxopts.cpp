// The workloads through cxxopts: typed values, vectors where options repeat.
// It has no reader for option texts and no abbreviated names.
#include <cxxopts.hpp>
#include <string>
#include <vector>

#include "workloads.h"

namespace qbench {

namespace {

void declare(cxxopts::Options& options, Workload const& w, bool repeated) {
    cxxopts::OptionAdder adder = options.add_options();
    for (OptionSpec const& option : w.options) {
        switch (option.kind) {
            case Kind::Int:
                if (repeated) {
                    adder(option.name, "A benchmark option.", cxxopts::value<std::vector<int>>());
                } else {
                    adder(option.name, "A benchmark option.", cxxopts::value<int>());
                }
                break;
            case Kind::Double:
                if (repeated) {
                    adder(option.name, "A benchmark option.", cxxopts::value<std::vector<double>>());
                } else {
                    adder(option.name, "A benchmark option.", cxxopts::value<double>());
                }
                break;
            case Kind::String:
                if (repeated) {
                    adder(option.name, "A benchmark option.", cxxopts::value<std::vector<std::string>>());
                } else {
                    adder(option.name, "A benchmark option.", cxxopts::value<std::string>());
                }
                break;
            case Kind::Flag:
                adder(option.name, "A benchmark option.", cxxopts::value<bool>());
                break;
        }
    }
}

Checksum readBack(cxxopts::ParseResult const& result, Workload const& w, bool repeated) {
    Checksum sum;
    for (OptionSpec const& option : w.options) {
        if (result.count(option.name) == 0) {
            sum.addAbsent();
            continue;
        }
        cxxopts::OptionValue const& value = result[option.name];
        switch (option.kind) {
            case Kind::Int:
                if (repeated) {
                    for (int v : value.as<std::vector<int>>())
                        sum.addInt(v);
                } else {
                    sum.addInt(value.as<int>());
                }
                break;
            case Kind::Double:
                if (repeated) {
                    for (double v : value.as<std::vector<double>>())
                        sum.addDouble(v);
                } else {
                    sum.addDouble(value.as<double>());
                }
                break;
            case Kind::String:
                if (repeated) {
                    for (std::string const& v : value.as<std::vector<std::string>>())
                        sum.addText(v);
                } else {
                    sum.addText(value.as<std::string>());
                }
                break;
            case Kind::Flag:
                if (value.as<bool>()) {
                    sum.addFlag();
                }
                break;
        }
    }
    return sum;
}

bool parseAndCheck(benchmark::State& state, cxxopts::Options& options, CommandLine& line, Workload const& w,
                   bool repeated, Checksum const& expected) {
    try {
        cxxopts::ParseResult const result = options.parse(line.argc(), line.argv());
        return verify(state, readBack(result, w, repeated), expected);
    } catch (std::exception const& e) {
        std::string const message = std::string("cxxopts: ") + e.what();
        state.SkipWithError(message.c_str());
        return false;
    }
}

void startup(benchmark::State& state) {
    Workload const w = startupWorkload();
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    for (auto _ : state) {
        cxxopts::Options options("bench", "A benchmark.");
        declare(options, w, false);
        if (!parseAndCheck(state, options, line, w, false, expected)) {
            break;
        }
    }
}

void commandLine(benchmark::State& state, Workload const& w) {
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    cxxopts::Options options("bench", "A benchmark.");
    declare(options, w, true);
    for (auto _ : state) {
        if (!parseAndCheck(state, options, line, w, true, expected)) {
            break;
        }
    }
}

// Declaration alone, as W3 declares its options.
void registration(benchmark::State& state, Workload const& w) {
    for (auto _ : state) {
        cxxopts::Options options("bench", "A benchmark.");
        declare(options, w, true);
        benchmark::DoNotOptimize(options);
    }
}

}  // namespace

void registerCxxopts() {
    char const* const lib = "cxxopts";
    add("W1", lib, 1, startup);
    add("W2/N=1000", lib, 1000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(1000)); });
    add("W2/N=10000", lib, 10000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(10000)); });
    add("W2/N=100000", lib, 100000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(100000)); });
    add("W3/M=1000", lib, 100, [](benchmark::State& s) { commandLine(s, manyOptionsWorkload(1000)); });
    add("W3/register", lib, 1000, [](benchmark::State& s) { registration(s, manyOptionsWorkload(1000)); });
}

}  // namespace qbench
