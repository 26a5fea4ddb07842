#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace Bench {

/// CPU milliseconds of the whole process, user and system.
inline double CpuMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Resident memory in MiB, after freed memory was given back.
inline double ResidentMebibytes() {
    malloc_trim(0);
    long all = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

template<class Work>
double Once(Work work) {
    const double start = CpuMilliseconds();
    work();
    return CpuMilliseconds() - start;
}

/// The median CPU time of so many runs.
template<class Work>
double Median(int runs, Work work) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) times.push_back(Once(work));
    std::sort(times.begin(), times.end());
    const std::size_t middle = times.size() / 2;
    return times.size() % 2 == 1 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
}

/// One figure, in the form that all peers print: "R variant metric value".
inline void Report(const char* variant, const char* metric, double value) {
    std::printf("R %s %s %.4f\n", variant, metric, value);
    std::fflush(stdout);
}

} // namespace Bench
