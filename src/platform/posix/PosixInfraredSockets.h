// The kernel's infrared sockets, where it still has them; Open tells. Needs no kernel headers.
#pragma once

#include "platform/InfraredSockets.h"

namespace brask {

class PosixInfraredSockets final : public InfraredSockets {
  public:
    Status Start() override { return {}; }
    void Stop() override {}
    Result<std::unique_ptr<InfraredSocket>> Open() override;
};

}  // namespace brask
