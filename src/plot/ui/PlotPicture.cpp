#include "plot/ui/PlotPicture.h"

#include <QBuffer>
#include <QHash>

#include "plot/PictureFormat.h"

namespace brask {
namespace {

constexpr qsizetype kPaletteLimit = 256;
// Level 3 of 9 of the compressor: plots are flat areas, more effort saves next to nothing.
constexpr int kPngQuality = 70;

// The same picture with a palette, or the picture itself when it has too many colours.
QImage WithPalette(const QImage& picture) {
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    QImage result(source.size(), QImage::Format_Indexed8);
    QHash<QRgb, uchar> indexes;
    QList<QRgb> palette;
    QRgb lastColor = 0;
    uchar lastIndex = 0;
    for (int y = 0; y < source.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        uchar* to = result.scanLine(y);
        for (int x = 0; x < source.width(); ++x) {
            // neighbouring pixels mostly have one colour: the table is asked where it changes
            if (palette.isEmpty() || from[x] != lastColor) {
                lastColor = from[x];
                const auto known = indexes.constFind(lastColor);
                if (known != indexes.constEnd()) {
                    lastIndex = *known;
                } else {
                    if (palette.size() == kPaletteLimit) return picture;
                    lastIndex = static_cast<uchar>(palette.size());
                    indexes.insert(lastColor, lastIndex);
                    palette.append(lastColor);
                }
            }
            to[x] = lastIndex;
        }
    }
    result.setColorTable(palette);
    return result;
}

}  // namespace

Status WritePicture(const QImage& picture, const std::string& path, Files& files) {
    const auto format = PictureFormatOf(path);
    if (!format) return Error{0, "the name has neither .bmp nor .png in it"};
    QByteArray bytes;
    // encoded in memory first, so that a full disk or a failing encoder never touches the old file
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool png = format == PictureFormat::kPng;
    const bool encoded =
        png ? WithPalette(picture).save(&buffer, "PNG", kPngQuality) : picture.save(&buffer, "BMP");
    if (!encoded) return Error{0, "the picture could not be encoded"};
    return WriteWholeFile(files, path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace brask
