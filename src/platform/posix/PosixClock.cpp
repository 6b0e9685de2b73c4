#include "platform/posix/PosixClock.h"

#include <chrono>
#include <ctime>

namespace brask {

CivilDateTime PosixClock::Now() const {
    const std::time_t now = std::time(nullptr);
    // localtime_r, since the other form keeps its result in a place that all callers share
    std::tm local{};
    localtime_r(&now, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
            local.tm_hour,
            local.tm_min,
            local.tm_sec};
}

std::int64_t PosixClock::SteadyMilliseconds() const {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count();
}

}  // namespace brask
