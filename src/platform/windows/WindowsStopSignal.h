// Ctrl+C, a closed console and the end of the Windows session as a wish that can be looked for.
#pragma once

#include "platform/StopSignal.h"

namespace brask {

class WindowsStopSignal final : public StopSignal {
  public:
    WindowsStopSignal();
    ~WindowsStopSignal() override;
    WindowsStopSignal(const WindowsStopSignal&) = delete;
    WindowsStopSignal& operator=(const WindowsStopSignal&) = delete;

    bool Requested() override;
};

}  // namespace brask
