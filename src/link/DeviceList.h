// Which instrument is in range, read from the list of devices that the infrared sockets give.
#pragma once

#include <string>

#include "platform/InfraredSockets.h"

namespace brask {

struct FoundDevice {
    int Count = 0;     // devices in the list
    std::string Name;  // bytes as the device sends them; of the last device read
    bool Accepted = false;
};

// Reads the list with the stride that this program has always used, 26 bytes a device where systems
// write 30. Users rely on it: only a list of one device is ever read exactly, so with a second
// device in range, which could be anybody's telephone, nothing is downloaded. Safe for any
// content: what lies beyond the list reads as 0.
FoundDevice FindInstrument(const InfraredDeviceList& devices);

// Where to connect to: the first device's infrared service for serial lines.
InfraredAddress ServiceAddress(const InfraredDeviceList& devices);

}  // namespace brask
