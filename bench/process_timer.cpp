// Starts programs in turns, many times, and reports for each the wall-clock
// time from spawn to exit, the processor time the kernel charged to the
// process (user and system) and its page faults, and the median of the
// differences to the last program's run of the same turn. Turns rotate, and
// runs of one turn follow each other, so that a slow spell of a shared
// machine falls on both runs of a pair alike. Processor time and faults
// come from the child's own resource usage (wait4), so the time the machine
// spends on other work while the child waits to run is not in them.
//   quen_process_timer RUNS PROGRAM... -- [ARGUMENT...]
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

extern char** environ;

namespace {

struct Sample {
    double wall;
    double cpu;
    double faults;
};

double seconds(timeval const& t) { return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6; }

// One start of `argv[0]`, output to /dev/null; false on failure.
bool runOnce(std::vector<char*>& argv, Sample& sample) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    auto const start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    int const spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    int status = 0;
    rusage usage{};
    bool const ok =
        spawned == 0 && wait4(pid, &status, 0, &usage) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    auto const end = std::chrono::steady_clock::now();
    posix_spawn_file_actions_destroy(&actions);
    sample.wall = std::chrono::duration<double, std::micro>(end - start).count();
    sample.cpu = (seconds(usage.ru_utime) + seconds(usage.ru_stime)) * 1e6;
    sample.faults = static_cast<double>(usage.ru_minflt + usage.ru_majflt);
    return ok;
}

struct Summary {
    double median;
    double low;
    double high;
};

Summary summarise(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return Summary{values[values.size() / 2], values.front(), values[values.size() * 9 / 10]};
}

// The median of the differences between the runs of one turn.
double pairedDifference(std::vector<double> const& a, std::vector<double> const& b) {
    std::vector<double> differences;
    for (std::size_t i = 0; i < a.size(); ++i) {
        differences.push_back(a[i] - b[i]);
    }
    return summarise(differences).median;
}

struct Program {
    std::vector<char*> argv;
    std::vector<double> wall;
    std::vector<double> cpu;
    std::vector<double> faults;
};

}  // namespace

int main(int argc, char** argv) {
    int const runs = argc >= 4 ? std::atoi(argv[1]) : 0;
    std::vector<Program> programs;
    int i = 2;
    for (; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        programs.push_back(Program{{argv[i]}, {}, {}, {}});
    }
    if (runs < 2 || programs.size() < 2) {
        std::fprintf(stderr, "usage: quen_process_timer RUNS PROGRAM... -- [ARGUMENT...]\n");
        return 2;
    }
    for (Program& program : programs) {
        for (int a = i + 1; a < argc; ++a) {
            program.argv.push_back(argv[a]);
        }
        program.argv.push_back(nullptr);
    }
    std::size_t const count = programs.size();
    for (int run = 0; run < runs; ++run) {
        for (std::size_t k = 0; k < count; ++k) {
            Program& program = programs[(static_cast<std::size_t>(run) + k) % count];
            Sample sample{};
            if (!runOnce(program.argv, sample)) {
                std::fprintf(stderr, "process: a run of %s failed\n", program.argv[0]);
                return 1;
            }
            program.wall.push_back(sample.wall);
            program.cpu.push_back(sample.cpu);
            program.faults.push_back(sample.faults);
        }
    }
    std::printf("%d runs each; medians, lowest to 90th percentile, and the median difference to the last\n", runs);
    std::printf("program's run of the same turn\n\n");
    std::printf("| program | wall us | wall range | CPU us | CPU range | page faults | wall - last | CPU - last |\n");
    std::printf("|---|---:|---:|---:|---:|---:|---:|---:|\n");
    Program const& last = programs.back();
    for (Program const& program : programs) {
        Summary const wall = summarise(program.wall);
        Summary const cpu = summarise(program.cpu);
        Summary const faults = summarise(program.faults);
        std::printf("| %s | %.1f | %.0f-%.0f | %.0f | %.0f-%.0f | %.0f | %.1f | %.1f |\n", program.argv[0], wall.median,
                    wall.low, wall.high, cpu.median, cpu.low, cpu.high, faults.median,
                    pairedDifference(program.wall, last.wall), pairedDifference(program.cpu, last.cpu));
    }
    return 0;
}
