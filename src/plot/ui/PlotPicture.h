// Writes the drawn plot into a picture file.
#pragma once

#include <QImage>
#include <string>

#include "platform/Files.h"
#include "platform/Result.h"

namespace brask {

// Replaces the file at path, whole or not at all, by the picture as BMP or PNG; the name decides
// (PictureFormatOf). Fails for any other name, and as Files::Replace does. A PNG of at most 256
// colours becomes a palette picture: smaller and written faster.
// Nothing is written when encoding fails.
Status WritePicture(const QImage& picture, const std::string& path, Files& files);

}  // namespace brask
