// Which link leads to the instrument: "irda" is the system's own infrared sockets, "tcp:HOST:PORT"
// a simulated instrument that listens there.
#pragma once

#include <optional>
#include <string_view>

#include "platform/Tcp.h"

namespace brask {

struct InstrumentAddress {
    // Nothing for the system's own infrared sockets.
    std::optional<TcpAddress> Simulated;
};

// Exact, in lower case; nothing for any other text, and for port 0, where nobody can listen.
std::optional<InstrumentAddress> ParseInstrumentAddress(std::string_view text);

}  // namespace brask
