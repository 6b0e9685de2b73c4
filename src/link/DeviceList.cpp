#include "link/DeviceList.h"

#include <algorithm>
#include <string_view>

#include "platform/AsciiText.h"

namespace brask {
namespace {

constexpr std::size_t kHead = 4;
constexpr std::size_t kIdentifierSize = 4;
constexpr std::size_t kNameSize = 22;
constexpr std::size_t kStride = kIdentifierSize + kNameSize;
constexpr std::string_view kService = "IrDA:IrCOMM";

std::string NameAt(const InfraredDeviceList& devices, std::size_t position) {
    const std::size_t begin = std::min(position, devices.size());
    const std::size_t length = std::min(kNameSize, devices.size() - begin);
    const std::string_view field(devices.data() + begin, length);
    return std::string(field.substr(0, field.find('\0')));
}

}  // namespace

FoundDevice FindInstrument(const InfraredDeviceList& devices) {
    FoundDevice found;
    found.Count = static_cast<unsigned char>(devices[0]);
    if (found.Count == 0) return found;
    const auto last = static_cast<std::size_t>(found.Count) - 1;
    found.Name = NameAt(devices, kHead + last * kStride + kIdentifierSize);
    found.Accepted =
        found.Name == "Generic IrDA" || LowerCase(std::string(Trimmed(found.Name))) == "vek tk42";
    return found;
}

InfraredAddress ServiceAddress(const InfraredDeviceList& devices) {
    InfraredAddress address{};
    address[0] = 26;
    const auto identifier = devices.begin() + kHead;
    std::copy_n(identifier, kIdentifierSize, address.begin() + 2);
    std::copy(kService.begin(), kService.end(), address.begin() + 2 + kIdentifierSize);
    return address;
}

}  // namespace brask
