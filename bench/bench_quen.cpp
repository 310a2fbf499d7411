// The workloads through quen_3_1's public interface, as a host uses it.
#include <quen_3_1/quen.h>

#include <string>

#include "quen_host.h"
#include "workloads.h"

namespace qbench {

namespace {

using quen_3_1::IParser;
using quen_3_1::IParseResult;

bool succeeded(benchmark::State& state, IParser* parser, int code) {
    if (code == 0) {
        return true;
    }
    std::string const message = "parse failed: " + std::string(parser->getErrorDesc());
    state.SkipWithError(message.c_str());
    return false;
}

void startup(benchmark::State& state) {
    Workload const w = startupWorkload();
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    for (auto _ : state) {
        IParser* const parser = makeParser(w);
        IParseResult* result = nullptr;
        parser->createResult(&result);
        int const code = parser->parseArgsVector(line.argc(), line.argv(), result);
        Checksum const got = readBack(result, w);
        result->destroy();
        bool const ok = succeeded(state, parser, code) && verify(state, got, expected);
        parser->destroy();
        if (!ok) {
            break;
        }
    }
}

// The parser is declared once; every iteration parses into a fresh result.
void commandLine(benchmark::State& state, Workload const& w) {
    CommandLine line(w);
    Checksum const expected = expectedValues(w);
    IParser* const parser = makeParser(w);
    for (auto _ : state) {
        IParseResult* result = nullptr;
        parser->createResult(&result);
        int const code = parser->parseArgsVector(line.argc(), line.argv(), result);
        Checksum const got = readBack(result, w);
        result->destroy();
        if (!succeeded(state, parser, code) || !verify(state, got, expected)) {
            break;
        }
    }
    parser->destroy();
}

void optionFile(benchmark::State& state, Workload const& w) {
    std::string const text = optionText(w, "--");
    Checksum const expected = expectedValues(w);
    IParser* const parser = makeParser(w);
    for (auto _ : state) {
        IParseResult* result = nullptr;
        parser->createResult(&result);
        int const code = parser->parseStream(text.c_str(), result);
        Checksum const got = readBack(result, w);
        result->destroy();
        if (!succeeded(state, parser, code) || !verify(state, got, expected)) {
            break;
        }
    }
    parser->destroy();
}

// Declaration alone: a parser created, the options declared, the parser destroyed.
void registration(benchmark::State& state, Workload const& w) {
    for (auto _ : state) {
        IParser* const parser = makeParser(w);
        benchmark::DoNotOptimize(parser);
        parser->destroy();
    }
}

}  // namespace

void registerQuen() {
    char const* const lib = "quen_3_1";
    add("W1", lib, 1, startup);
    add("W2/N=1000", lib, 1000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(1000)); });
    add("W2/N=10000", lib, 10000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(10000)); });
    add("W2/N=100000", lib, 100000, [](benchmark::State& s) { commandLine(s, manyArgumentsWorkload(100000)); });
    add("W3/M=1000", lib, 100, [](benchmark::State& s) { commandLine(s, manyOptionsWorkload(1000)); });
    add("W3/register", lib, 1000, [](benchmark::State& s) { registration(s, manyOptionsWorkload(1000)); });
    add("W4", lib, 100000, [](benchmark::State& s) { optionFile(s, manyArgumentsWorkload(100000)); });
    add("W5/log-f", lib, 1000, [](benchmark::State& s) { commandLine(s, abbreviationWorkload(1000, false)); });
    add("W5/l-f", lib, 1000, [](benchmark::State& s) { commandLine(s, abbreviationWorkload(1000, true)); });
}

}  // namespace qbench
