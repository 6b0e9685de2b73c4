// Infrared sockets as the link to the instrument needs them: look who is in range, connect, send,
// receive. No call here waits longer than about 50 ms, so that the loop around it can answer its
// user; what takes longer says so and is called again. The one exception is a system that looks
// around by itself in ListDevices, which may take it a second.
//
// A received block begins with exactly one control byte, which belongs to the infrared service and
// not to the text behind it. Systems do not keep to that by themselves: InfraredBlocks.h.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/Result.h"

namespace brask {

// Byte 0 is the number of devices in range; from byte 4 on come the devices, 30 bytes each: 4 bytes
// of identifier, 22 bytes of name, padded with NULs, then hints, character set and padding.
using InfraredDeviceList = std::array<char, 300>;

// Where to connect to: family 26 as 1A 00, the 4 bytes of identifier, 25 bytes of service name
// padded with NULs. The same on every system; each turns it into what it calls an address.
using InfraredAddress = std::array<char, 31>;

// The most that one receive takes from the system, in bytes.
inline constexpr std::size_t kLongestInfraredBlock = 8192;
// The longest wait of one call, in milliseconds.
inline constexpr int kInfraredWait = 50;

struct ReceivedBlock {
    // Empty when nothing came within the wait; else its control byte and the text.
    std::string Bytes;
    // The other side has closed and all that it sent was handed out.
    bool Closed = false;
};

// One socket; destroying it closes it. Errors carry the system's number. A handle that is closed
// fails every call but Close.
class InfraredSocket {
  public:
    virtual ~InfraredSocket() = default;

    // Fills the list, which is zeroed first; nobody in range is a list of 0 devices, not an error.
    // False while the answer is outstanding: call again with the same list.
    virtual Result<bool> ListDevices(InfraredDeviceList& devices) = 0;
    // False while the connection is being made: call again with the same address. After an error
    // the socket is of no further use.
    virtual Result<bool> Connect(const InfraredAddress& address) = 0;
    // Sends the bytes whole, control byte included; how many went out, which is all of them: when a
    // system takes only a part, that is an error.
    virtual Result<std::size_t> Send(std::string_view bytes) = 0;
    // The same ahead of what was sent before and not yet read, where the system has such a way.
    virtual Result<std::size_t> SendUrgent(std::string_view bytes) = 0;
    // Whether Send would not have to wait.
    virtual bool Writable() = 0;
    // The next block; an empty one after a short wait without data.
    virtual Result<ReceivedBlock> Receive() = 0;
    virtual Status Close() = 0;
};

class InfraredSockets {
  public:
    virtual ~InfraredSockets() = default;

    // Makes the system's sockets ready, or says why not. Needs its Stop.
    virtual Status Start() = 0;
    virtual void Stop() = 0;
    // A new socket. The error means that this system has no infrared sockets.
    virtual Result<std::unique_ptr<InfraredSocket>> Open() = 0;
    // Waits as long as a receive without data does. For between two attempts to connect, so that
    // waiting for the instrument costs no processor time.
    virtual void Rest();
};

}  // namespace brask
