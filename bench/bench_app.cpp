// W1 through quen_3_1's application layer: the same tool declared with App,
// every option bound to a variable, parsed and read back from the variables.
// The table sets it against W1 through quen.h, which does the same work.
#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "workloads.h"

namespace qbench {

namespace {

// One variable per option; only the one of the option's kind is bound.
struct Slot {
    int integer = 0;
    double real = 0;
    std::string text;
    bool flag = false;
};

// `slots` must not grow afterwards: the App keeps references into it.
void declare(quen_3_1::App& app, Workload const& w, std::vector<Slot>& slots) {
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        OptionSpec const& option = w.options[k];
        Slot& slot = slots[k];
        switch (option.kind) {
            case Kind::Int:
                app.option(option.name, slot.integer, "A benchmark option.");
                break;
            case Kind::Double:
                app.option(option.name, slot.real, "A benchmark option.");
                break;
            case Kind::String:
                app.option(option.name, slot.text, "A benchmark option.");
                break;
            case Kind::Flag:
                app.option(option.name, slot.flag, "A benchmark option.");
                break;
        }
    }
}

Checksum readBack(quen_3_1::Result const& result, Workload const& w, std::vector<Slot> const& slots) {
    Checksum sum;
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        Slot const& slot = slots[k];
        if (!result.given(w.options[k].name)) {
            sum.addAbsent();
            continue;
        }
        switch (w.options[k].kind) {
            case Kind::Int:
                sum.addInt(slot.integer);
                break;
            case Kind::Double:
                sum.addDouble(slot.real);
                break;
            case Kind::String:
                sum.addText(slot.text);
                break;
            case Kind::Flag:
                if (slot.flag) {
                    sum.addFlag();
                }
                break;
        }
    }
    return sum;
}

void startup(benchmark::State& state) {
    Workload const w = startupWorkload();
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    for (auto _ : state) {
        quen_3_1::App app("bench");
        std::vector<Slot> slots(w.options.size());
        declare(app, w, slots);
        quen_3_1::Result const result = app.parse(line.argc(), line.argv());
        if (result.done()) {
            std::string const message = "parse failed: " + result.message();
            state.SkipWithError(message.c_str());
            break;
        }
        if (!verify(state, readBack(result, w, slots), expected)) {
            break;
        }
    }
}

}  // namespace

void registerApp() { add("W1", kAppLayer, 1, startup); }

}  // namespace qbench
