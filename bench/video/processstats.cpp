#include "processstats.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

ProcessStats runMeasured(const std::vector<std::string> &argv)
{
    std::vector<char *> arguments;
    for (const std::string &argument : argv)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    ProcessStats stats;
    int status = 0;
    rusage usage {};
    if (child < 0 || wait4(child, &status, 0, &usage) < 0)
        return stats;
    stats.wallSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
    stats.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    stats.maxRssMegabytes = double(usage.ru_maxrss) / 1024.0;
    stats.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return stats;
}

ProcessStats median(std::vector<ProcessStats> runs)
{
    if (runs.empty())
        return {};
    const auto middle = [&](double ProcessStats::*figure) {
        std::vector<double> values;
        for (const ProcessStats &run : runs)
            values.push_back(run.*figure);
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    };
    ProcessStats result;
    result.wallSeconds = middle(&ProcessStats::wallSeconds);
    result.cpuSeconds = middle(&ProcessStats::cpuSeconds);
    result.maxRssMegabytes = middle(&ProcessStats::maxRssMegabytes);
    result.exitCode
        = std::all_of(runs.begin(), runs.end(), [](const ProcessStats &run) { return run.exitCode == 0; }) ? 0 : 1;
    return result;
}

void printStats(const char *name, const ProcessStats &stats)
{
    std::printf("%-28s wall %7.2f s   cpu %7.2f s   max rss %7.1f MB%s\n", name, stats.wallSeconds, stats.cpuSeconds,
        stats.maxRssMegabytes, stats.exitCode == 0 ? "" : "   (FAILED)");
}
