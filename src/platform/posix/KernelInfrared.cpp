#include "platform/posix/KernelInfrared.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace brask::posix {
namespace {

constexpr std::size_t kIdentifierSize = 4;
constexpr std::size_t kNameSize = 22;
// where they stand in the kernel's device record
constexpr std::size_t kPeer = 4;
constexpr std::size_t kName = 8;
constexpr std::size_t kCharacterSet = 30;
constexpr std::size_t kHints = 31;

constexpr std::size_t kListHead = 4;
constexpr std::size_t kListDeviceSize = 30;
constexpr char kAnySelector = '\xFF';

}  // namespace

InfraredDeviceList DevicesFromKernel(const KernelDeviceList& list, std::size_t length) {
    InfraredDeviceList devices{};
    std::uint32_t count = 0;
    std::memcpy(&count, list.data(), sizeof count);
    const std::size_t held =
        length < kKernelListHead ? 0 : (length - kKernelListHead) / kKernelDeviceSize;
    const std::size_t shown = std::min({std::size_t{count}, held, kMostKernelDevices});
    devices[0] = static_cast<char>(shown);
    for (std::size_t i = 0; i < shown; ++i) {
        const char* from = list.data() + kKernelListHead + i * kKernelDeviceSize;
        char* to = devices.data() + kListHead + i * kListDeviceSize;
        std::copy_n(from + kPeer, kIdentifierSize, to);
        std::copy_n(from + kName, kNameSize, to + kIdentifierSize);
        to += kIdentifierSize + kNameSize;
        std::copy_n(from + kHints, 2, to);
        to[2] = from[kCharacterSet];
    }
    return devices;
}

KernelAddress AddressForKernel(const InfraredAddress& address) {
    KernelAddress kernel{};
    const std::uint16_t family = kInfraredFamily;
    std::memcpy(kernel.data(), &family, sizeof family);
    kernel[2] = kAnySelector;
    // identifier and service name stand side by side in both
    std::copy_n(address.begin() + 2, address.size() - 2, kernel.begin() + 4);
    return kernel;
}

}  // namespace brask::posix
