// Runs every workload for every library, then prints one table: nanoseconds
// per unit (the lowest of the repetitions' wall-clock times: other work on a
// shared machine only ever adds to it, while the CPU time a loaded virtual
// machine reports can fall below the work done), the ratio of quen_3_1 to the
// fastest of CLI11, cxxopts and Boost.PO, and to getopt_long as the floor;
// then W1 through the application layer against W1 through quen.h.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "workloads.h"

namespace {

class TableReporter : public benchmark::ConsoleReporter {
public:
    // Plain columns: the output is usually kept in a file.
    TableReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(std::vector<Run> const& runs) override {
        for (Run const& run : runs) {
            if (run.run_type != Run::RT_Iteration) {
                continue;
            }
            std::string const name = run.run_name.function_name;
            if (run.error_occurred) {
                m_errors[name] = run.error_message;
                continue;
            }
            auto const units = run.counters.find("units");
            double const per = units == run.counters.end() ? 1.0 : units->second.value;
            double const ns = run.GetAdjustedRealTime() * multiplier(run.time_unit) / per;
            auto const found = m_best.find(name);
            if (found == m_best.end() || ns < found->second) {
                m_best[name] = ns;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void printTable(std::ostream& out) const {
        std::vector<std::string> const& libraries = qbench::libraries();
        out << "\n| workload | unit |";
        for (std::string const& library : libraries) {
            out << " " << library << " |";
        }
        out << " quen_3_1 / fastest of CLI11, cxxopts, Boost.PO | quen_3_1 / getopt_long |\n";
        out << "|---|---|";
        for (std::size_t i = 0; i < libraries.size(); ++i) {
            out << "---:|";
        }
        out << "---:|---:|\n";
        for (qbench::Row const& row : qbench::rows()) {
            out << "| " << row.label << " | " << row.unit << " |";
            for (std::string const& library : libraries) {
                out << " " << cell(row.workload + "/" + library) << " |";
            }
            double const ours = value(row.workload + "/quen_3_1");
            double fastest = std::numeric_limits<double>::infinity();
            std::string fastestName;
            for (char const* peer : {"CLI11", "cxxopts", "Boost.PO"}) {
                double const v = value(row.workload + "/" + peer);
                if (v < fastest) {
                    fastest = v;
                    fastestName = peer;
                }
            }
            out << " " << ratio(ours, fastest, fastestName) << " | "
                << ratio(ours, value(row.workload + "/getopt_long"), "") << " |\n";
        }
        printLayerRow(out);
        for (auto const& error : m_errors) {
            out << "\nFAILED " << error.first << ": " << error.second << "\n";
        }
    }

    bool failed() const { return !m_errors.empty(); }

private:
    // The same tool through the application layer and through quen.h.
    void printLayerRow(std::ostream& out) const {
        std::string const viaHeader = "W1/quen_3_1";
        std::string const viaApp = std::string("W1/") + qbench::kAppLayer;
        out << "\n| workload | unit | quen.h | App | App / quen.h |\n|---|---|---:|---:|---:|\n";
        out << "| W1 start-up through the application layer | ns/run | " << cell(viaHeader) << " | " << cell(viaApp)
            << " | " << ratio(value(viaApp), value(viaHeader), "") << " |\n";
    }

    static double multiplier(benchmark::TimeUnit unit) {
        switch (unit) {
            case benchmark::kSecond:
                return 1e9;
            case benchmark::kMillisecond:
                return 1e6;
            case benchmark::kMicrosecond:
                return 1e3;
            case benchmark::kNanosecond:
                break;
        }
        return 1.0;
    }

    double value(std::string const& name) const {
        auto const found = m_best.find(name);
        return found == m_best.end() ? std::numeric_limits<double>::infinity() : found->second;
    }

    // Thousands separated; one decimal below 100.
    std::string cell(std::string const& name) const {
        if (m_errors.count(name) != 0) {
            return "FAILED";
        }
        double const v = value(name);
        if (v == std::numeric_limits<double>::infinity()) {
            return "-";
        }
        char buffer[64];
        if (v < 100) {
            std::snprintf(buffer, sizeof buffer, "%.1f", v);
            return buffer;
        }
        std::snprintf(buffer, sizeof buffer, "%.0f", v);
        std::string digits = buffer;
        for (int i = static_cast<int>(digits.size()) - 3; i > 0; i -= 3) {
            digits.insert(static_cast<std::size_t>(i), ",");
        }
        return digits;
    }

    static std::string ratio(double ours, double other, std::string const& otherName) {
        double const inf = std::numeric_limits<double>::infinity();
        if (ours == inf || other == inf) {
            return "-";
        }
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, "%.2fx", ours / other);
        return otherName.empty() ? std::string(buffer) : std::string(buffer) + " (" + otherName + ")";
    }

    std::map<std::string, double> m_best;
    std::map<std::string, std::string> m_errors;
};

}  // namespace

int main(int argc, char** argv) {
    qbench::registerQuen();
    qbench::registerApp();
    qbench::registerCli11();
    qbench::registerCxxopts();
    qbench::registerBoost();
    qbench::registerGetopt();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printTable(std::cout);
    benchmark::Shutdown();
    return reporter.failed() ? 1 : 0;
}
