#pragma once

#include <string>
#include <vector>

/** What one run of a program cost: wall time, CPU time (user and system) and peak resident memory. */
struct ProcessStats
{
    double wallSeconds = 0;
    double cpuSeconds = 0;
    double maxRssMegabytes = 0;
    int exitCode = -1;
};

/** Runs `argv` to its end with its output thrown away, and measures it. */
[[nodiscard]] ProcessStats runMeasured(const std::vector<std::string> &argv);

/** The median of each figure over several runs. */
[[nodiscard]] ProcessStats median(std::vector<ProcessStats> runs);

/** One line: name, wall, CPU, max RSS. */
void printStats(const char *name, const ProcessStats &stats);
