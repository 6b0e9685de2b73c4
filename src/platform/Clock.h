// Time as the program sees it; by hand in tests, so that nothing has to wait.
#pragma once

#include <cstdint>

#include "platform/CivilTime.h"

namespace brask {

class Clock {
  public:
    virtual ~Clock() = default;

    // The user's local date and time. For what people read, such as the log. It may jump when the
    // user or the system sets it, so nothing is measured with it.
    virtual CivilDateTime Now() const = 0;
    // Milliseconds since an arbitrary start; never goes back. For measuring and for deciding
    // whether something is due.
    virtual std::int64_t SteadyMilliseconds() const = 0;
};

}  // namespace brask
