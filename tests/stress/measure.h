// Measuring for the stress tests: the processor time of two inputs taken in
// turns, peak memory, and checks that print their verdict and are counted.
#ifndef QUEN_TESTS_STRESS_MEASURE_H
#define QUEN_TESTS_STRESS_MEASURE_H

#include <functional>
#include <string>

namespace quen_stress {

// The processor time of `body` (the stress programs run on one thread), not the
// time on the wall: other processes on the machine stretch a long run's wall
// time more than a short one's, the processor time of both alike.
double seconds(std::function<void()> const& body);

struct Times {
    double first;
    double second;
};

// Two inputs measured in turns, the best of `tries` runs each: the runs least
// disturbed by other processes, and a slow spell of the machine falls on both
// inputs instead of on one.
Times bestInTurns(int tries, std::function<void()> const& first, std::function<void()> const& second);

// A /proc/self/status field in KiB ("VmHWM", "VmRSS"); 0 when unreadable.
long statusKiB(std::string const& field);
// Starts a new peak at the current resident size.
void resetPeak();
double peakMiBAbove(long baseKiB);

// Prints the verdict of one check; a failed one is counted.
void check(bool ok, char const* what);
// How many checks failed so far.
int failures();

// Every block of a megabyte or more comes fresh from the system and goes back
// when freed, so that a small input and a large one both pay for their pages
// instead of the small one reusing what an earlier run left behind.
void sameMemoryCostForAllSizes();

}  // namespace quen_stress

#endif  // QUEN_TESTS_STRESS_MEASURE_H
