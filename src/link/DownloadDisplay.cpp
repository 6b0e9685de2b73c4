#include "link/DownloadDisplay.h"

#include "link/LinkTexts.h"

namespace brask {

std::string RateText(const Texts& texts, std::int64_t bytes, std::int64_t elapsedTenths) {
    std::string length = std::to_string(bytes);
    if (elapsedTenths <= 0) return length;
    // in tenths of a byte a second, rounded
    const std::int64_t rate = (bytes * 100 + elapsedTenths / 2) / elapsedTenths;
    // As this figure has always been written: digits only where they count, so ".5" and "12.".
    std::string whole = rate < 10 ? "" : std::to_string(rate / 10);
    for (std::size_t at = whole.size(); at > 3; at -= 3) whole.insert(at - 3, 1, ',');
    const std::string tenth = rate % 10 == 0 ? "" : std::to_string(rate % 10);
    return texts.Fill(link_texts::kRate, {length, whole + "." + tenth});
}

}  // namespace brask
