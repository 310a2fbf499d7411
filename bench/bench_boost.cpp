// The workloads through Boost.Program_options: the command-line parser with
// its default style (which guesses unambiguous prefixes of whole names) and
// the configuration file reader for the option text.
#include <boost/program_options.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "workloads.h"

namespace qbench {

namespace {

namespace po = boost::program_options;

po::options_description declare(Workload const& w, bool repeated) {
    po::options_description description("bench");
    po::options_description_easy_init adder = description.add_options();
    for (OptionSpec const& option : w.options) {
        char const* const name = option.name.c_str();
        switch (option.kind) {
            case Kind::Int:
                if (repeated) {
                    adder(name, po::value<std::vector<int>>(), "A benchmark option.");
                } else {
                    adder(name, po::value<int>(), "A benchmark option.");
                }
                break;
            case Kind::Double:
                if (repeated) {
                    adder(name, po::value<std::vector<double>>(), "A benchmark option.");
                } else {
                    adder(name, po::value<double>(), "A benchmark option.");
                }
                break;
            case Kind::String:
                if (repeated) {
                    adder(name, po::value<std::vector<std::string>>(), "A benchmark option.");
                } else {
                    adder(name, po::value<std::string>(), "A benchmark option.");
                }
                break;
            case Kind::Flag:
                adder(name, po::bool_switch(), "A benchmark option.");
                break;
        }
    }
    return description;
}

// A switch is always in the map, false when it was not given.
Checksum readBack(po::variables_map const& map, Workload const& w, bool repeated) {
    Checksum sum;
    for (OptionSpec const& option : w.options) {
        if (map.count(option.name) == 0 || (option.kind == Kind::Flag && !map[option.name].as<bool>())) {
            sum.addAbsent();
            continue;
        }
        po::variable_value const& value = map[option.name];
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
                sum.addFlag();
                break;
        }
    }
    return sum;
}

template <class Parse>
bool parseAndCheck(benchmark::State& state, Parse const& parse, Workload const& w, bool repeated,
                   Checksum const& expected) {
    try {
        po::variables_map map;
        po::store(parse(), map);
        po::notify(map);
        return verify(state, readBack(map, w, repeated), expected);
    } catch (std::exception const& e) {
        std::string const message = std::string("Boost.PO: ") + e.what();
        state.SkipWithError(message.c_str());
        return false;
    }
}

void startup(benchmark::State& state) {
    Workload const w = startupWorkload();
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    for (auto _ : state) {
        po::options_description const description = declare(w, false);
        auto const parse = [&] { return po::parse_command_line(line.argc(), line.argv(), description); };
        if (!parseAndCheck(state, parse, w, false, expected)) {
            break;
        }
    }
}

void commandLine(benchmark::State& state, Workload const& w) {
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    po::options_description const description = declare(w, true);
    auto const parse = [&] { return po::parse_command_line(line.argc(), line.argv(), description); };
    for (auto _ : state) {
        if (!parseAndCheck(state, parse, w, true, expected)) {
            break;
        }
    }
}

void optionFile(benchmark::State& state, Workload const& w) {
    std::string const text = optionText(w, "");
    Checksum const expected = expectedValues(w);
    po::options_description const description = declare(w, true);
    auto const parse = [&] {
        std::istringstream input(text);
        return po::parse_config_file(input, description);
    };
    for (auto _ : state) {
        if (!parseAndCheck(state, parse, w, true, expected)) {
            break;
        }
    }
}

// Declaration alone, as W3 declares its options.
void registration(benchmark::State& state, Workload const& w) {
    for (auto _ : state) {
        po::options_description const description = declare(w, true);
        benchmark::DoNotOptimize(description.options().data());
    }
}

}  // namespace

void registerBoost() {
    char const* const lib = "Boost.PO";
    add("W1", lib, 1, startup);
    add("W2/N=1000", lib, 1000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(1000)); });
    add("W2/N=10000", lib, 10000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(10000)); });
    add("W2/N=100000", lib, 100000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(100000)); });
    add("W3/M=1000", lib, 100, [](benchmark::State& s) { commandLine(s, manyOptionsWorkload(1000)); });
    add("W3/register", lib, 1000, [](benchmark::State& s) { registration(s, manyOptionsWorkload(1000)); });
    add("W4", lib, 100000, [](benchmark::State& s) { optionFile(s, manyArgumentsWorkload(100000)); });
    add("W5/log-f", lib, 1000, [](benchmark::State& s) { commandLine(s, abbreviationWorkload(1000, false)); });
}

}  // namespace qbench
