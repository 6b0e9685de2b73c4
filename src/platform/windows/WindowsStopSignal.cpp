#include "platform/windows/WindowsStopSignal.h"

#include <windows.h>

#include <atomic>

namespace brask {
namespace {

// The system calls the handler on a thread of its own and hands it nothing to reach an object by.
std::atomic<bool>& Flag() {
    static std::atomic<bool> requested{false};
    return requested;
}

BOOL WINAPI Remember(DWORD event) {
    Flag() = true;
    // After a closed console the system ends the program as soon as the handler returns; the time
    // that it grants at most is enough for an end in good order.
    if (event == CTRL_CLOSE_EVENT || event == CTRL_SHUTDOWN_EVENT) ::Sleep(5000);
    return TRUE;
}

}  // namespace

WindowsStopSignal::WindowsStopSignal() {
    Flag() = false;
    ::SetConsoleCtrlHandler(Remember, TRUE);
}

WindowsStopSignal::~WindowsStopSignal() { ::SetConsoleCtrlHandler(Remember, FALSE); }

bool WindowsStopSignal::Requested() { return Flag(); }

}  // namespace brask
