#include "platform/InfraredBlocks.h"

#include <algorithm>
#include <utility>

namespace brask {

std::string InfraredBlocks::Next(std::string received, bool full) {
    if (received.empty()) return received;
    const bool continues = std::exchange(cut_, full);
    if (std::exchange(first_, false)) {
        const std::size_t count = static_cast<unsigned char>(received[0]);
        // a count that a whole block has no room for is none
        if (count < received.size() || full) {
            controlLeft_ = count - std::min(count, received.size() - 1);
            received.erase(1, count);
        }
        received[0] = '\0';
        return received;
    }
    if (!continues) return received;
    const std::size_t control = std::min(controlLeft_, received.size());
    controlLeft_ -= control;
    received.erase(0, control);
    // A block that ended exactly where the buffer did loses nothing by this: in front of its own
    // control byte the 0 counts as filler.
    return received.empty() ? received : received.insert(0, 1, '\0');
}

}  // namespace brask
