// W1 through quen_3_1's application layer: the same tool declared with App,
// every option bound to a variable, parsed and read back from the variables.
// The table sets it against W1 through quen.h, which does the same work.
#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "app_host.h"
#include "workloads.h"

namespace qbench {

namespace {

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
