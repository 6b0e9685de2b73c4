#include "plot/PictureFormat.h"

#include <algorithm>

namespace brask {
namespace {

bool Contains(std::string_view path, std::string_view lowerCase) {
    const auto same = [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
    };
    return std::search(path.begin(), path.end(), lowerCase.begin(), lowerCase.end(), same) !=
           path.end();
}

}  // namespace

std::optional<PictureFormat> PictureFormatOf(std::string_view path) {
    if (Contains(path, ".bmp")) return PictureFormat::kBmp;
    if (Contains(path, ".png")) return PictureFormat::kPng;
    return std::nullopt;
}

}  // namespace brask
