#include "frametap.h"

std::vector<double> evenlySpreadTimes(double duration, int count)
{
    std::vector<double> times;
    for (int i = 0; i < count; ++i)
        times.push_back(duration * i / count);
    return times;
}
