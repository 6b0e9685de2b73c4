// The kernel's own forms of infrared addresses and device lists, turned into those of the seam.
// Written out byte by byte, since kernels with infrared sockets are older than the headers of
// today's systems.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "platform/InfraredSockets.h"

namespace brask::posix {

inline constexpr int kInfraredFamily = 23;
inline constexpr int kInfraredLevel = 266;  // of socket options
inline constexpr int kEnumerateDevices = 1;

// A count of 4 bytes in the machine's order, then 36 bytes a device: 4 of our own address, 4 of the
// device's, 22 of name, character set, two of hints, padding.
inline constexpr std::size_t kKernelListHead = 4;
inline constexpr std::size_t kKernelDeviceSize = 36;
inline constexpr std::size_t kMostKernelDevices = 9;
using KernelDeviceList = std::array<char, kKernelListHead + kMostKernelDevices * kKernelDeviceSize>;

// 2 bytes of family in the machine's order, the selector (left to the kernel, which looks the
// service up by its name), padding, 4 bytes of identifier, the service name, padding.
using KernelAddress = std::array<char, 36>;

// The devices of the list's first `length` bytes, as many as fit; a count that promises more
// devices than the length holds is cut.
InfraredDeviceList DevicesFromKernel(const KernelDeviceList& list, std::size_t length);
KernelAddress AddressForKernel(const InfraredAddress& address);

}  // namespace brask::posix
