// The infrared sockets of Winsock.
#pragma once

#include "platform/InfraredSockets.h"

namespace brask {

class WindowsInfraredSockets final : public InfraredSockets {
  public:
    // Asks for version 1.1 of Winsock, the first that has infrared sockets.
    Status Start() override;
    void Stop() override;
    Result<std::unique_ptr<InfraredSocket>> Open() override;
};

}  // namespace brask
