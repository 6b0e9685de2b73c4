#include "platform/InstrumentAddress.h"

namespace brask {

std::optional<InstrumentAddress> ParseInstrumentAddress(std::string_view text) {
    constexpr std::string_view kTcp = "tcp:";
    if (text == "irda") return InstrumentAddress();
    if (!text.starts_with(kTcp)) return std::nullopt;
    const auto address = ParseTcpAddress(text.substr(kTcp.size()));
    if (!address || address->Port == 0) return std::nullopt;
    return InstrumentAddress{address};
}

}  // namespace brask
