#include "data/FileNames.h"

#include <algorithm>
#include <array>

#include "platform/AsciiText.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

// What the common file systems take.
constexpr std::size_t kLongestName = 255;
constexpr std::size_t kLongestEnding = 16;

bool Refused(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 32 || byte == 127 ||
           std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

bool IsAsciiAlphanumeric(char c) {
    const char lower = LowerCase(c);
    return (lower >= 'a' && lower <= 'z') || (c >= '0' && c <= '9');
}

bool NamesDevice(std::string_view name) {
    const std::string_view stem = Trimmed(name.substr(0, name.find('.')));
    static constexpr std::array<std::string_view, 4> kDevices = {"CON", "PRN", "AUX", "NUL"};
    for (const std::string_view device : kDevices) {
        if (SameIgnoringCase(stem, device)) return true;
    }
    const std::string_view port = stem.substr(0, 3);
    return stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9' &&
           (SameIgnoringCase(port, "COM") || SameIgnoringCase(port, "LPT"));
}

// Whole characters only, of at most so many bytes.
std::string Cleaned(std::string_view text, std::size_t longest) {
    std::string clean;
    while (!text.empty()) {
        const std::size_t length = FirstCharacterLength(text);
        const std::size_t taken = std::max<std::size_t>(length, 1);
        if (clean.size() + taken > longest) break;
        if (length == 0 || Refused(text[0])) {
            clean += '_';
        } else {
            clean += text.substr(0, length);
        }
        text.remove_prefix(taken);
    }
    return clean;
}

}  // namespace

std::string SafeFileName(std::string_view text, std::string_view ending) {
    const std::size_t room = kLongestName - std::min(ending.size(), kLongestName);
    std::string name = Cleaned(text, room);
    if (name.empty()) name = "_";
    const auto loose = [](char c) { return c == ' ' || c == '.'; };
    // a hidden file would look like a lost one; Windows drops blanks and stops at the end silently
    if (loose(name.front())) name.front() = '_';
    if (loose(name.back())) name.back() = '_';
    if (NamesDevice(name)) name.front() = '_';
    return name + std::string(ending);
}

std::string SafeFileName(std::string_view name) {
    const auto stop = name.rfind('.');
    if (stop == std::string_view::npos || stop == 0) return SafeFileName(name, "");
    const std::string_view ending = name.substr(stop);
    // what is no plain ending, such as the rest of a path, gets no special care
    const bool plain = ending.size() > 1 && ending.size() <= kLongestEnding &&
                       std::all_of(ending.begin() + 1, ending.end(), IsAsciiAlphanumeric);
    return plain ? SafeFileName(name.substr(0, stop), ending) : SafeFileName(name, "");
}

}  // namespace brask
