// Runs one workload a given number of times through quen_3_1, with callgrind's
// instrumentation switched on only around the measured iterations (after one
// warm-up iteration), so that `bench/count` can report instructions per unit:
// a figure that, unlike time, does not depend on the load of the machine.
//   quen_instructions WORKLOAD ITERATIONS
// WORKLOAD: W1, W2 (N = 1,000), W2-100k, W3, W4 (10,000 lines), W5-log-f, W5-l-f,
// W1-app (W1 declared through the application layer), W3-register (W3's 1,000
// options declared on a new parser that is then destroyed; units are options).
// Prints the number of units per iteration; exits 1 on a wrong read-back.
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "app_host.h"
#include "quen_host.h"
#include "workloads.h"

namespace {

using qbench::Checksum;
using qbench::Workload;

struct Case {
    char const* name;
    Workload (*make)();
    bool startup;              // parser declared in every iteration
    bool text;                 // parsed as an option text
    bool app;                  // declared and parsed through App (startup only)
    bool declareOnly = false;  // a new parser declared and destroyed, nothing parsed
};

Case const kCases[] = {
    {"W1", [] { return qbench::startupWorkload(); }, true, false, false},
    {"W2", [] { return qbench::manyArgumentsWorkload(1000); }, false, false, false},
    {"W2-100k", [] { return qbench::manyArgumentsWorkload(100000); }, false, false, false},
    {"W3", [] { return qbench::manyOptionsWorkload(1000); }, false, false, false},
    {"W4", [] { return qbench::manyArgumentsWorkload(10000); }, false, true, false},
    {"W5-log-f", [] { return qbench::abbreviationWorkload(1000, false); }, false, false, false},
    {"W5-l-f", [] { return qbench::abbreviationWorkload(1000, true); }, false, false, false},
    {"W1-app", [] { return qbench::startupWorkload(); }, true, false, true},
    {"W3-register", [] { return qbench::manyOptionsWorkload(1000); }, true, false, false, true},
};

Case const* findCase(char const* name) {
    for (Case const& c : kCases) {
        if (std::strcmp(c.name, name) == 0) {
            return &c;
        }
    }
    return nullptr;
}

// One iteration of W1 through App, as bench_app.cpp runs it.
bool iterateApp(Workload const& w, qbench::CommandLine& line, Checksum const& expected) {
    quen_3_1::App app("bench");
    std::vector<qbench::Slot> slots(w.options.size());
    qbench::declare(app, w, slots);
    quen_3_1::Result const result = app.parse(line.argc(), line.argv());
    return !result.done() && qbench::readBack(result, w, slots) == expected;
}

// One iteration as the benchmark runs it; false when the values read back are wrong.
bool iterate(Case const& c, Workload const& w, quen_3_1::IParser* declared, qbench::CommandLine& line,
             std::string const& text, Checksum const& expected) {
    if (c.app) {
        return iterateApp(w, line, expected);
    }
    if (c.declareOnly) {
        quen_3_1::IParser* const parser = qbench::makeParser(w);
        parser->destroy();
        return true;
    }
    quen_3_1::IParser* const parser = c.startup ? qbench::makeParser(w) : declared;
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    int const code =
        c.text ? parser->parseStream(text.c_str(), result) : parser->parseArgsVector(line.argc(), line.argv(), result);
    bool const ok = code == 0 && qbench::readBack(result, w) == expected;
    result->destroy();
    if (c.startup) {
        parser->destroy();
    }
    return ok;
}

}  // namespace

int main(int argc, char** argv) {
    Case const* const c = argc == 3 ? findCase(argv[1]) : nullptr;
    int const iterations = argc == 3 ? std::atoi(argv[2]) : 0;
    if (c == nullptr || iterations < 1) {
        std::fprintf(stderr,
                     "usage: quen_instructions W1|W2|W2-100k|W3|W4|W5-log-f|W5-l-f|W1-app|W3-register ITERATIONS\n");
        return 2;
    }
    Workload const w = c->make();
    qbench::CommandLine line(w);
    std::string const text = qbench::optionText(w, "--");
    Checksum const expected = qbench::expectedValues(w);
    quen_3_1::IParser* const declared = c->startup ? nullptr : qbench::makeParser(w);
    bool ok = iterate(*c, w, declared, line, text, expected);
    CALLGRIND_START_INSTRUMENTATION;
    for (int i = 0; ok && i < iterations; ++i) {
        ok = iterate(*c, w, declared, line, text, expected);
    }
    CALLGRIND_STOP_INSTRUMENTATION;
    if (declared != nullptr) {
        declared->destroy();
    }
    if (!ok) {
        std::fprintf(stderr, "%s: wrong values read back\n", c->name);
        return 1;
    }
    std::size_t const units = c->declareOnly ? w.options.size() : c->startup ? 1 : w.occurrences.size();
    std::printf("%zu\n", units);
    return 0;
}
