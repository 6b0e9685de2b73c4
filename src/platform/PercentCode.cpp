#include "platform/PercentCode.h"

namespace brask {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

}  // namespace

void AppendPercentCode(std::string& text, char byte) {
    const auto value = static_cast<unsigned char>(byte);
    text += '%';
    text += kDigits[value / 16U];
    text += kDigits[value % 16U];
}

std::string PercentDecoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
        const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
        if (low < 0) {
            decoded += text[i];
            continue;
        }
        decoded += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return decoded;
}

}  // namespace brask
