// The reference parser as a process of its own: reads FILE, prints how much it read and its peak
// memory.
#include <sys/resource.h>

#include <cstdio>

#include "ReferenceParser.h"

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("usage: reference_process FILE\n", stderr);
        return 2;
    }
    const auto readings = brask::bench::ReferenceParser::Read(arguments[1]);
    double gas = 0;
    for (const double ppm : readings.Gas) gas = ppm > gas ? ppm : gas;
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    std::printf("%zu readings, gas up to %.1f ppm, %ld KiB\n", readings.Time.size(), gas,
                usage.ru_maxrss);
    return readings.Time.empty() ? 1 : 0;
}
