#include "plot/PictureFormat.h"

#include "platform/AsciiText.h"

namespace brask {

std::optional<PictureFormat> PictureFormatOf(std::string_view path) {
    if (ContainsIgnoringCase(path, ".bmp")) return PictureFormat::kBmp;
    if (ContainsIgnoringCase(path, ".png")) return PictureFormat::kPng;
    return std::nullopt;
}

}  // namespace brask
