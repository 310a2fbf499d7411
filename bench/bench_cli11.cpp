// The workloads through CLI11: options bound to variables, vectors for
// repeated options, the TOML/INI reader for the option text.
#include <CLI/CLI.hpp>
#include <memory>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

#include "workloads.h"

namespace qbench {

namespace {

struct Slot {
    int i = 0;
    double d = 0;
    std::string s;
    bool b = false;
    std::vector<int> is;
    std::vector<double> ds;
    std::vector<std::string> ss;
};

// The reader keeps only the first line of a key that is repeated with other
// keys in between; merging the lines of each key gives every value, as the
// other libraries do.
class MergingConfig : public CLI::ConfigBase {
public:
    std::vector<CLI::ConfigItem> from_config(std::istream& input) const override {
        std::vector<CLI::ConfigItem> lines = CLI::ConfigBase::from_config(input);
        std::vector<CLI::ConfigItem> merged;
        std::unordered_map<std::string, std::size_t> at;
        for (CLI::ConfigItem& item : lines) {
            auto const found = at.emplace(item.fullname(), merged.size());
            if (found.second) {
                merged.push_back(std::move(item));
            } else {
                std::vector<std::string>& inputs = merged[found.first->second].inputs;
                inputs.insert(inputs.end(), item.inputs.begin(), item.inputs.end());
            }
        }
        return merged;
    }
};

// Scalars for W1, vectors where options repeat.
std::vector<CLI::Option*> declare(CLI::App& app, Workload const& w, std::vector<Slot>& slots, bool repeated) {
    std::vector<CLI::Option*> options;
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        std::string const name = "--" + w.options[k].name;
        Slot& slot = slots[k];
        switch (w.options[k].kind) {
            case Kind::Int:
                options.push_back(repeated ? app.add_option(name, slot.is, "A benchmark option.")
                                           : app.add_option(name, slot.i, "A benchmark option."));
                break;
            case Kind::Double:
                options.push_back(repeated ? app.add_option(name, slot.ds, "A benchmark option.")
                                           : app.add_option(name, slot.d, "A benchmark option."));
                break;
            case Kind::String:
                options.push_back(repeated ? app.add_option(name, slot.ss, "A benchmark option.")
                                           : app.add_option(name, slot.s, "A benchmark option."));
                break;
            case Kind::Flag:
                options.push_back(app.add_flag(name, slot.b, "A benchmark option."));
                break;
        }
    }
    return options;
}

Checksum readBack(Workload const& w, std::vector<Slot> const& slots, std::vector<CLI::Option*> const& options,
                  bool repeated) {
    Checksum sum;
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        if (options[k]->count() == 0) {
            sum.addAbsent();
            continue;
        }
        Slot const& slot = slots[k];
        switch (w.options[k].kind) {
            case Kind::Int:
                if (repeated) {
                    for (int v : slot.is)
                        sum.addInt(v);
                } else {
                    sum.addInt(slot.i);
                }
                break;
            case Kind::Double:
                if (repeated) {
                    for (double v : slot.ds)
                        sum.addDouble(v);
                } else {
                    sum.addDouble(slot.d);
                }
                break;
            case Kind::String:
                if (repeated) {
                    for (std::string const& v : slot.ss)
                        sum.addText(v);
                } else {
                    sum.addText(slot.s);
                }
                break;
            case Kind::Flag:
                if (slot.b) {
                    sum.addFlag();
                }
                break;
        }
    }
    return sum;
}

bool guarded(benchmark::State& state, std::function<void()> const& run) {
    try {
        run();
        return true;
    } catch (std::exception const& e) {
        std::string const message = std::string("CLI11: ") + e.what();
        state.SkipWithError(message.c_str());
        return false;
    }
}

void startup(benchmark::State& state) {
    Workload const w = startupWorkload();
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    for (auto _ : state) {
        CLI::App app{"bench"};
        std::vector<Slot> slots(w.options.size());
        std::vector<CLI::Option*> const options = declare(app, w, slots, false);
        if (!guarded(state, [&] { app.parse(line.argc(), line.argv()); }) ||
            !verify(state, readBack(w, slots, options, false), expected)) {
            break;
        }
    }
}

void commandLine(benchmark::State& state, Workload const& w) {
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    CLI::App app{"bench"};
    std::vector<Slot> slots(w.options.size());
    std::vector<CLI::Option*> const options = declare(app, w, slots, true);
    for (auto _ : state) {
        if (!guarded(state, [&] { app.parse(line.argc(), line.argv()); }) ||
            !verify(state, readBack(w, slots, options, true), expected)) {
            break;
        }
    }
}

void optionFile(benchmark::State& state, Workload const& w) {
    std::string const text = optionText(w, "");
    Checksum const expected = expectedValues(w);
    CLI::App app{"bench"};
    app.config_formatter(std::make_shared<MergingConfig>());
    std::vector<Slot> slots(w.options.size());
    std::vector<CLI::Option*> const options = declare(app, w, slots, true);
    for (auto _ : state) {
        app.clear();
        for (Slot& slot : slots) {
            slot.is.clear();
            slot.ds.clear();
            slot.ss.clear();
        }
        bool const parsed = guarded(state, [&] {
            std::istringstream input(text);
            app.parse_from_stream(input);
        });
        if (!parsed || !verify(state, readBack(w, slots, options, true), expected)) {
            break;
        }
    }
}

// Declaration alone, as W3 declares its options.
void registration(benchmark::State& state, Workload const& w) {
    for (auto _ : state) {
        CLI::App app{"bench"};
        std::vector<Slot> slots(w.options.size());
        std::vector<CLI::Option*> const options = declare(app, w, slots, true);
        benchmark::DoNotOptimize(options.data());
    }
}

}  // namespace

void registerCli11() {
    char const* const lib = "CLI11";
    add("W1", lib, 1, startup);
    add("W2/N=1000", lib, 1000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(1000)); });
    add("W2/N=10000", lib, 10000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(10000)); });
    add("W2/N=100000", lib, 100000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(100000)); });
    add("W3/M=1000", lib, 100, [](benchmark::State& s) { commandLine(s, manyOptionsWorkload(1000)); });
    add("W3/register", lib, 1000, [](benchmark::State& s) { registration(s, manyOptionsWorkload(1000)); });
    add("W4", lib, 100000, [](benchmark::State& s) { optionFile(s, manyArgumentsWorkload(100000)); });
}

}  // namespace qbench
