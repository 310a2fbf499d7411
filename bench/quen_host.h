// quen_3_1 as the benchmark host uses it: the workload's options declared on
// a new parser, and every value of every option read back through get/next.
#ifndef QUEN_BENCH_QUEN_HOST_H
#define QUEN_BENCH_QUEN_HOST_H

#include <quen_3_1/quen.h>

#include "workloads.h"

namespace qbench {

// A new parser with the workload's options; the caller destroys it.
quen_3_1::IParser* makeParser(Workload const& w);
// Every value of every option, in option order, through get() and next().
Checksum readBack(quen_3_1::IParseResult* result, Workload const& w);

}  // namespace qbench

#endif
