// A load as a process of its own, for its peak memory: reads FILE, prints the number of readings
// and the peak in KiB.
#include <sys/resource.h>

#include <cstdio>

#include "Loading.h"

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("usage: load_process FILE\n", stderr);
        return 2;
    }
    brask::bench::Loading loading;
    const std::int32_t readings = loading.Load(arguments[1]);
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    std::printf("%d readings, %ld KiB\n", readings, usage.ru_maxrss);
    return readings > 0 ? 0 : 1;
}
