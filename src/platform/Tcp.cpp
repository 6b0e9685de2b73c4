#include "platform/Tcp.h"

#include <charconv>

namespace brask {

std::optional<TcpAddress> ParseTcpAddress(std::string_view text) {
    const auto colon = text.rfind(':');
    if (colon == std::string_view::npos) return std::nullopt;
    std::string_view host = text.substr(0, colon);
    const std::string_view port = text.substr(colon + 1);
    const bool bracketed = host.size() > 2 && host.front() == '[' && host.back() == ']';
    if (bracketed) host = host.substr(1, host.size() - 2);
    // "::1" could be a host without a port or a port of 1; the brackets are what tells
    const char* strange = bracketed ? "[]" : "[]:";
    if (host.empty() || host.find_first_of(strange) != std::string_view::npos) return std::nullopt;
    TcpAddress address{std::string(host), 0};
    const char* end = port.data() + port.size();
    const auto [rest, error] = std::from_chars(port.data(), end, address.Port);
    if (error != std::errc() || rest != end) return std::nullopt;
    return address;
}

std::string TcpAddressText(const TcpAddress& address) {
    const bool number = address.Host.find(':') != std::string::npos;
    return (number ? "[" + address.Host + "]" : address.Host) + ":" + std::to_string(address.Port);
}

}  // namespace brask
