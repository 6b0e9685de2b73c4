#include "platform/InfraredSockets.h"

#include <chrono>
#include <thread>

namespace brask {

void InfraredSockets::Rest() {
    std::this_thread::sleep_for(std::chrono::milliseconds(kInfraredWait));
}

}  // namespace brask
