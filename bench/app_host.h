// quen_3_1's application layer as the benchmark host uses it: the workload's
// options declared on an App, each bound to a variable of its kind, and the
// values read back from the variables.
#ifndef QUEN_BENCH_APP_HOST_H
#define QUEN_BENCH_APP_HOST_H

#include <quen_3_1/app.h>

#include <string>
#include <vector>

#include "workloads.h"

namespace qbench {

// One variable per option; only the one of the option's kind is bound. Widest
// first: at 48 bytes the workload's twenty fit in a block that the allocator
// serves from its small lists (below 1,024 bytes), as a program's variables on
// its stack cost no allocation at all.
struct Slot {
    std::string text;
    double real = 0;
    int integer = 0;
    bool flag = false;
};

// Declares the workload's options on `app`, bound to `slots` (one per option),
// which must not grow afterwards: the App keeps references into it.
void declare(quen_3_1::App& app, Workload const& w, std::vector<Slot>& slots);
// The variables of the options that were given, in option order.
Checksum readBack(quen_3_1::Result const& result, Workload const& w, std::vector<Slot> const& slots);

}  // namespace qbench

#endif
