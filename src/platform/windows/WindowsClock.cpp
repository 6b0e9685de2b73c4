#include "platform/windows/WindowsClock.h"

#include <windows.h>

namespace brask {

CivilDateTime WindowsClock::Now() const {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    return {{local.wYear, local.wMonth, local.wDay}, local.wHour, local.wMinute, local.wSecond};
}

std::int64_t WindowsClock::SteadyMilliseconds() const {
    return static_cast<std::int64_t>(GetTickCount64());
}

}  // namespace brask
