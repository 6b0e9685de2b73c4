// A clock that moves when it is told to.
#pragma once

#include "platform/Clock.h"

namespace brask {

class ManualClock final : public Clock {
  public:
    // Set directly by the test; the two do not follow each other.
    CivilDateTime Local{{2004, 3, 5}, 13, 30, 0};
    std::int64_t Milliseconds = 0;

    CivilDateTime Now() const override { return Local; }
    std::int64_t SteadyMilliseconds() const override { return Milliseconds; }
};

}  // namespace brask
