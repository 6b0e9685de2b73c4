// The system's clocks.
#pragma once

#include "platform/Clock.h"

namespace brask {

class WindowsClock final : public Clock {
  public:
    CivilDateTime Now() const override;
    std::int64_t SteadyMilliseconds() const override;
};

}  // namespace brask
