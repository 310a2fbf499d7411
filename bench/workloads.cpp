#include "workloads.h"

#include <cmath>
#include <sstream>
#include <utility>

namespace qbench {

namespace {

// No first part begins with 'l', so the abbreviations of W5 stay unique.
char const* const kFirstParts[] = {"cache", "thread", "retry", "buffer", "output", "input", "user",  "host",
                                   "time",  "max",    "min",   "scale",  "queue",  "batch", "index", "page",
                                   "frame", "color",  "font",  "block",  "chunk",  "path",  "mode",  "rate",
                                   "size",  "port",   "file",  "data",   "disk",   "net",   "sync",  "hash",
                                   "key",   "proxy",  "group", "shard",  "trace",  "audit", "alert", "zone"};
char const* const kSecondParts[] = {"count",  "limit",   "size",   "level",  "dir",    "name",   "mode",
                                    "rate",   "file",    "depth",  "width",  "height", "delay",  "period",
                                    "ratio",  "timeout", "weight", "factor", "policy", "format", "prefix",
                                    "suffix", "quota",   "offset", "window"};
std::size_t const kFirstCount = sizeof kFirstParts / sizeof kFirstParts[0];
std::size_t const kSecondCount = sizeof kSecondParts / sizeof kSecondParts[0];

std::uint64_t hashText(char const* text, std::size_t size) {
    std::uint64_t h = 14695981039346656037ULL;
    for (std::size_t i = 0; i < size; ++i) {
        h = (h ^ static_cast<unsigned char>(text[i])) * 1099511628211ULL;
    }
    return h;
}

std::string valueText(Kind kind, std::size_t i, char const* textPrefix) {
    switch (kind) {
        case Kind::Int:
            return std::to_string(i);
        case Kind::Double:
            return std::to_string(i) + ".5";
        case Kind::String:
            return textPrefix + std::to_string(i);
        case Kind::Flag:
            break;
    }
    return std::string();
}

// Occurrences grouped by option, each group in command-line order.
std::vector<std::vector<Occurrence const*>> byOption(Workload const& w) {
    std::vector<std::vector<Occurrence const*>> groups(w.options.size());
    for (Occurrence const& o : w.occurrences) {
        groups[o.option].push_back(&o);
    }
    return groups;
}

}  // namespace

void Checksum::addInt(long long v) {
    ++values;
    ints += v;
}

void Checksum::addDouble(double v) {
    ++values;
    doubles += v;
}

void Checksum::addText(char const* text, std::size_t size) {
    ++values;
    texts = (texts ^ hashText(text, size)) * 1099511628211ULL;
}

void Checksum::addFlag() {
    ++values;
    ++flags;
}

void Checksum::addAbsent() { ++absent; }

bool Checksum::operator==(Checksum const& other) const {
    return values == other.values && ints == other.ints && texts == other.texts && flags == other.flags &&
           absent == other.absent && std::fabs(doubles - other.doubles) <= 1e-9 * std::fmax(1.0, std::fabs(doubles));
}

std::string Checksum::describe() const {
    std::ostringstream out;
    out << "values " << values << ", ints " << ints << ", doubles " << doubles << ", texts " << texts << ", flags "
        << flags << ", absent " << absent;
    return out.str();
}

Checksum expectedValues(Workload const& w) {
    Checksum sum;
    std::vector<std::vector<Occurrence const*>> const groups = byOption(w);
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        if (groups[k].empty()) {
            sum.addAbsent();
        }
        for (Occurrence const* o : groups[k]) {
            switch (w.options[k].kind) {
                case Kind::Int:
                    sum.addInt(std::stoll(o->value));
                    break;
                case Kind::Double:
                    sum.addDouble(std::stod(o->value));
                    break;
                case Kind::String:
                    sum.addText(o->value);
                    break;
                case Kind::Flag:
                    sum.addFlag();
                    break;
            }
        }
    }
    return sum;
}

Checksum expectedTexts(Workload const& w) {
    Checksum sum;
    std::vector<std::vector<Occurrence const*>> const groups = byOption(w);
    for (std::size_t k = 0; k < w.options.size(); ++k) {
        if (groups[k].empty()) {
            sum.addAbsent();
        }
        for (Occurrence const* o : groups[k]) {
            if (w.options[k].kind == Kind::Flag) {
                sum.addFlag();
            } else {
                sum.addText(o->value);
            }
        }
    }
    return sum;
}

std::vector<std::string> generatedNames(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t k = 0; k < count; ++k) {
        std::size_t const first = k % kFirstCount;
        std::size_t const second = (k / kFirstCount) % kSecondCount;
        std::string name = std::string(kFirstParts[first]) + "-" + kSecondParts[second];
        if (k >= kFirstCount * kSecondCount) {
            name += "-" + std::to_string(k / (kFirstCount * kSecondCount));
        }
        names.push_back(std::move(name));
    }
    return names;
}

Workload startupWorkload() {
    Workload w;
    std::vector<std::string> const names = generatedNames(20);
    Kind const kinds[] = {Kind::Int, Kind::Double, Kind::String, Kind::Flag};
    for (std::size_t k = 0; k < names.size(); ++k) {
        w.options.push_back({names[k], kinds[k % 4]});
    }
    for (std::size_t k = 0; k < 16; ++k) {
        Kind const kind = w.options[k].kind;
        std::string value;
        if (kind == Kind::Int) {
            value = std::to_string(1000 + 7 * k);
        } else if (kind == Kind::Double) {
            value = std::to_string(k) + ".25";
        } else if (kind == Kind::String) {
            value = "text-" + std::to_string(k);
        }
        w.occurrences.push_back({k, names[k], value});
    }
    return w;
}

Workload manyArgumentsWorkload(std::size_t n) {
    Workload w;
    std::vector<std::string> const names = generatedNames(50);
    Kind const kinds[] = {Kind::Int, Kind::Double, Kind::String};
    for (std::size_t k = 0; k < names.size(); ++k) {
        w.options.push_back({names[k], kinds[k % 3]});
    }
    for (std::size_t i = 0; i < n; ++i) {
        std::size_t const k = i % names.size();
        w.occurrences.push_back({k, names[k], valueText(w.options[k].kind, i, "v")});
    }
    return w;
}

Workload manyOptionsWorkload(std::size_t m) {
    Workload w;
    std::vector<std::string> const names = generatedNames(m);
    Kind const kinds[] = {Kind::Int, Kind::Double, Kind::String};
    for (std::size_t k = 0; k < names.size(); ++k) {
        w.options.push_back({names[k], kinds[k % 3]});
    }
    std::size_t const step = m >= 100 ? m / 100 : 1;
    for (std::size_t j = 0; j < 100; ++j) {
        std::size_t const k = (j * step + j % 7) % m;
        w.occurrences.push_back({k, names[k], valueText(w.options[k].kind, j, "v")});
    }
    return w;
}

Workload abbreviationWorkload(std::size_t n, bool partwise) {
    Workload w;
    std::vector<std::string> const fillers = generatedNames(16);
    Kind const kinds[] = {Kind::Int, Kind::Double, Kind::String};
    for (std::size_t k = 0; k < fillers.size(); ++k) {
        w.options.push_back({fillers[k], kinds[k % 3]});
    }
    std::size_t const first = w.options.size();
    w.options.push_back({"log-file", Kind::String});
    w.options.push_back({"log-level", Kind::Int});
    w.options.push_back({"line-count", Kind::Int});
    w.options.push_back({"load-path", Kind::String});
    char const* const prefixes[] = {"log-f", "log-l", "line-c", "load-p"};
    char const* const partPrefixes[] = {"l-f", "l-l", "li-c", "lo-p"};
    for (std::size_t i = 0; i < n; ++i) {
        std::size_t const t = i % 4;
        std::size_t const k = first + t;
        w.occurrences.push_back({k, partwise ? partPrefixes[t] : prefixes[t], valueText(w.options[k].kind, i, "dir")});
    }
    return w;
}

CommandLine::CommandLine(Workload const& w) {
    m_texts.reserve(w.occurrences.size() + 1);
    m_texts.emplace_back("bench");
    for (Occurrence const& o : w.occurrences) {
        if (w.options[o.option].kind == Kind::Flag) {
            m_texts.push_back("--" + o.typed);
        } else {
            m_texts.push_back("--" + o.typed + "=" + o.value);
        }
    }
    for (std::string& text : m_texts) {
        m_pointers.push_back(&text[0]);
    }
    m_pointers.push_back(nullptr);
}

std::string optionText(Workload const& w, std::string const& prefix) {
    std::string text;
    for (Occurrence const& o : w.occurrences) {
        text += prefix;
        text += o.typed;
        text += '=';
        text += o.value;
        text += '\n';
    }
    return text;
}

void add(std::string const& workload, std::string const& library, double units,
         std::function<void(benchmark::State&)> body) {
    std::string const name = workload + "/" + library;
    benchmark::RegisterBenchmark(name.c_str(), [body, units](benchmark::State& state) {
        body(state);
        state.counters["units"] = units;
    })->Unit(benchmark::kNanosecond);
}

bool verify(benchmark::State& state, Checksum const& got, Checksum const& expected) {
    if (got == expected) {
        return true;
    }
    std::string const message = "read back " + got.describe() + "; expected " + expected.describe();
    state.SkipWithError(message.c_str());
    return false;
}

std::vector<Row> const& rows() {
    static std::vector<Row> const table = {
        {"W1", "W1 start-up: 20 options, 16 arguments, create+register+parse+read+destroy", "ns/run"},
        {"W2/N=1000", "W2 50 options, N = 1,000 arguments", "ns/arg"},
        {"W2/N=10000", "W2 50 options, N = 10,000 arguments", "ns/arg"},
        {"W2/N=100000", "W2 50 options, N = 100,000 arguments", "ns/arg"},
        {"W3/M=1000", "W3 M = 1,000 options, 100 arguments", "ns/arg"},
        {"W3/register", "W3 registering M = 1,000 options: create+declare+destroy", "ns/option"},
        {"W4", "W4 option text, 100,000 lines (CLI11/Boost: their config readers)", "ns/line"},
        {"W5/log-f", "W5 --log-f: prefix of the whole name, 20 options, 1,000 arguments", "ns/arg"},
        {"W5/l-f", "W5 --l-f: prefix of every part, 20 options, 1,000 arguments", "ns/arg"},
    };
    return table;
}

std::vector<std::string> const& libraries() {
    static std::vector<std::string> const names = {"quen_3_1", "CLI11", "cxxopts", "Boost.PO", "getopt_long"};
    return names;
}

}  // namespace qbench
