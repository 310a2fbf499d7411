#include "measure.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace quen_stress {

namespace {

int g_failures = 0;

}  // namespace

double seconds(std::function<void()> const& body) {
    std::clock_t const start = std::clock();
    body();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

Times bestInTurns(int tries, std::function<void()> const& first, std::function<void()> const& second) {
    Times best{seconds(first), seconds(second)};
    for (int i = 1; i < tries; ++i) {
        best.first = std::min(best.first, seconds(first));
        best.second = std::min(best.second, seconds(second));
    }
    return best;
}

long statusKiB(std::string const& field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.compare(0, field.size() + 1, field + ":") == 0) {
            return std::stol(line.substr(field.size() + 1));
        }
    }
    return 0;
}

void resetPeak() {
    std::ofstream clear("/proc/self/clear_refs");
    clear << "5";
}

double peakMiBAbove(long baseKiB) { return static_cast<double>(statusKiB("VmHWM") - baseKiB) / 1024.0; }

void check(bool ok, char const* what) {
    std::printf("  %-62s %s\n", what, ok ? "ok" : "FAILED");
    if (!ok) {
        ++g_failures;
    }
}

int failures() { return g_failures; }

void sameMemoryCostForAllSizes() {
#if defined(__GLIBC__)
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
    mallopt(M_TRIM_THRESHOLD, 1 << 20);
#endif
}

}  // namespace quen_stress
