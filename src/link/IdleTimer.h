// Counts the seconds in which nothing came. It ticks once a second from its start; data set the
// count back, not the ticks, so that two to three seconds of silence make a count of 3.
#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace brask {

class IdleTimer {
  public:
    // While nothing has come yet: the count stays.
    static constexpr int kWaiting = -1;
    // The count that ends the waiting.
    static constexpr int kLimit = 3;

    // Begins to tick; the clock must outlive it.
    IdleTimer(const Clock& clock, int count)
        : clock_(clock), lastTick_(clock.SteadyMilliseconds()), count_(count) {}

    void SetBack() { count_ = 0; }
    bool Waiting() const { return count_ == kWaiting; }
    // Looks at the clock; true when the limit is reached. However late the look, it counts one
    // tick: while the program was busy it has not been waiting for data.
    bool RunOut() {
        const std::int64_t ticks = (clock_.SteadyMilliseconds() - lastTick_) / kSecond;
        lastTick_ += ticks * kSecond;
        if (ticks > 0 && count_ >= 0) ++count_;
        return count_ >= kLimit;
    }

  private:
    static constexpr std::int64_t kSecond = 1000;  // milliseconds

    const Clock& clock_;
    std::int64_t lastTick_;
    int count_;
};

}  // namespace brask
