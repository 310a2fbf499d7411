// The workloads every library runs: the same options, the same command lines
// and texts, the same values read back. Each library turns what it reads into
// a Checksum, which must equal the one computed here from the workload itself.
#ifndef QUEN_BENCH_WORKLOADS_H
#define QUEN_BENCH_WORKLOADS_H

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace qbench {

enum class Kind { Int, Double, String, Flag };

struct OptionSpec {
    std::string name;
    Kind kind;
};

// One option on the command line: which option, the name as typed (an
// abbreviation in W5) and the value text (empty for flags).
struct Occurrence {
    std::size_t option;
    std::string typed;
    std::string value;
};

struct Workload {
    std::vector<OptionSpec> options;
    std::vector<Occurrence> occurrences;
};

// What a library read back, folded in option order and, within an option, in
// command-line order.
struct Checksum {
    long long values = 0;
    long long ints = 0;
    double doubles = 0;
    std::uint64_t texts = 0;
    long long flags = 0;
    long long absent = 0;

    void addInt(long long v);
    void addDouble(double v);
    void addText(char const* text, std::size_t size);
    void addText(std::string const& text) { addText(text.data(), text.size()); }
    void addFlag();
    void addAbsent();
    bool operator==(Checksum const& other) const;
    std::string describe() const;
};

// The typed values a full parser must read back.
Checksum expectedValues(Workload const& w);
// The value texts getopt_long finds (it converts nothing).
Checksum expectedTexts(Workload const& w);

// The M first names of the name generator: two-part names, the first 40 with
// distinct first parts.
std::vector<std::string> generatedNames(std::size_t count);

// W1: 20 options of four kinds, 16 arguments naming the first 16 of them.
Workload startupWorkload();
// W2, W4: 50 options (integer, double, text), N occurrences cycling over them.
Workload manyArgumentsWorkload(std::size_t n);
// W3: M options, 100 occurrences spread over them.
Workload manyOptionsWorkload(std::size_t m);
// W5: 20 options, N occurrences of four of them by abbreviated names.
// `partwise` false: prefixes of the whole name (--log-f); true: a prefix of
// every part (--l-f).
Workload abbreviationWorkload(std::size_t n, bool partwise);

// argv for a workload: "bench", then "--typed=value" or "--typed".
class CommandLine {
public:
    explicit CommandLine(Workload const& w);
    int argc() const { return static_cast<int>(m_pointers.size()) - 1; }
    char** argv() { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

// One occurrence per line, each line `prefix + name + "=" + value`.
std::string optionText(Workload const& w, std::string const& prefix);

// Registers a benchmark named "<workload>/<library>" that reports the number
// of units (runs, arguments or lines) it handles per iteration.
void add(std::string const& workload, std::string const& library, double units,
         std::function<void(benchmark::State&)> body);

// Fails the benchmark when `got` is not `expected`.
bool verify(benchmark::State& state, Checksum const& got, Checksum const& expected);

// The workloads and their display rows, in table order.
struct Row {
    std::string workload;
    std::string label;
    std::string unit;
};
std::vector<Row> const& rows();
std::vector<std::string> const& libraries();

// The library column of W1 through the application layer (bench_app.cpp).
inline constexpr char kAppLayer[] = "quen_3_1 App";

void registerQuen();
void registerApp();
void registerCli11();
void registerCxxopts();
void registerBoost();
void registerGetopt();

}  // namespace qbench

#endif
