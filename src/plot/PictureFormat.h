// Which picture a file name asks for.
#pragma once

#include <optional>
#include <string_view>

namespace brask {

enum class PictureFormat { kBmp, kPng };

// BMP for a path that contains ".bmp", else PNG for one that contains ".png", in any letter case
// and anywhere in it; nothing for any other path.
std::optional<PictureFormat> PictureFormatOf(std::string_view path);

}  // namespace brask
