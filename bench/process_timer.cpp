// Starts two programs in turns, many times, and reports the wall-clock time
// of each start to exit: the distribution of each and the difference of
// their medians and means. Turns alternate, so that a slow spell of a shared
// machine falls on both alike.
//   quen_process_timer RUNS PROGRAM_A PROGRAM_B [ARGUMENT...]
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <vector>

extern char** environ;

namespace {

// Microseconds from spawning `argv[0]` to reaping it; negative on failure.
double runOnce(std::vector<char*>& argv) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    auto const start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    int const spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    int status = 0;
    bool const ok = spawned == 0 && waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    auto const end = std::chrono::steady_clock::now();
    posix_spawn_file_actions_destroy(&actions);
    return ok ? std::chrono::duration<double, std::micro>(end - start).count() : -1.0;
}

struct Summary {
    double median;
    double mean;
    double low;
    double high;
};

Summary summarise(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    double const mean = std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
    return Summary{times[times.size() / 2], mean, times.front(), times[times.size() * 9 / 10]};
}

}  // namespace

int main(int argc, char** argv) {
    int const runs = argc >= 4 ? std::atoi(argv[1]) : 0;
    if (runs < 2) {
        std::fprintf(stderr, "usage: quen_process_timer RUNS PROGRAM_A PROGRAM_B [ARGUMENT...]\n");
        return 2;
    }
    std::vector<char*> a{argv[2]};
    std::vector<char*> b{argv[3]};
    for (int i = 4; i < argc; ++i) {
        a.push_back(argv[i]);
        b.push_back(argv[i]);
    }
    a.push_back(nullptr);
    b.push_back(nullptr);
    std::vector<double> timesA;
    std::vector<double> timesB;
    for (int i = 0; i < runs; ++i) {
        // Which one goes first alternates too.
        bool const aFirst = i % 2 == 0;
        double const first = runOnce(aFirst ? a : b);
        double const second = runOnce(aFirst ? b : a);
        if (first < 0 || second < 0) {
            std::fprintf(stderr, "process: a run failed\n");
            return 1;
        }
        timesA.push_back(aFirst ? first : second);
        timesB.push_back(aFirst ? second : first);
    }
    Summary const sa = summarise(timesA);
    Summary const sb = summarise(timesB);
    std::printf(
        "| program | runs | median us | mean us | lowest us | 90th percentile us |\n|---|---:|---:|---:|---:|---:|\n");
    std::printf("| %s | %d | %.1f | %.1f | %.1f | %.1f |\n", argv[2], runs, sa.median, sa.mean, sa.low, sa.high);
    std::printf("| %s | %d | %.1f | %.1f | %.1f | %.1f |\n", argv[3], runs, sb.median, sb.mean, sb.low, sb.high);
    std::printf("| difference | | %.1f | %.1f | %.1f | |\n", sa.median - sb.median, sa.mean - sb.mean, sa.low - sb.low);
    return 0;
}
