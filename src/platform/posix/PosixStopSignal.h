// SIGINT, SIGTERM and SIGHUP as a wish that can be looked for.
#pragma once

#include <csignal>

#include "platform/StopSignal.h"
#include "platform/posix/PosixHandle.h"

namespace brask {

class PosixStopSignal final : public StopSignal {
  public:
    // Takes the signals out of the system's hands; without room for that they end the program as
    // they always did.
    PosixStopSignal();
    ~PosixStopSignal() override;
    PosixStopSignal(const PosixStopSignal&) = delete;
    PosixStopSignal& operator=(const PosixStopSignal&) = delete;

    bool Requested() override;

  private:
    sigset_t before_{};
    posix::Handle signals_;
    bool requested_ = false;
};

}  // namespace brask
