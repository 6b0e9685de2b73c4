#include "app/ui/IconStore.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace brask {
namespace {

// Rendered beforehand, since an icon of pixels needs no SVG plug-in at run time; a screen of double
// density takes the larger ones.
constexpr int kSizes[] = {16, 24, 32, 48, 64, 96};
constexpr double kDisabledOpacity = 0.35;
// the colours that the drawings are written in
constexpr const char* kInk = "#263238";
constexpr const char* kAccent = "#1e78d2";

QPixmap Render(QSvgRenderer& drawing, int size, double opacity) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    // faded in its own colours, which fits light and dark windows alike
    painter.setOpacity(opacity);
    drawing.render(&painter);
    return picture;
}

QIcon IconOf(const QByteArray& svg) {
    QSvgRenderer drawing(svg);
    QIcon icon;
    for (const int size : kSizes) {
        icon.addPixmap(Render(drawing, size, 1.0), QIcon::Normal);
        icon.addPixmap(Render(drawing, size, kDisabledOpacity), QIcon::Disabled);
    }
    return icon;
}

QByteArray Drawing(const QString& name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

QIcon DrawnIcon(const QString& name, const QPalette& palette) {
    QByteArray svg = Drawing(name);
    if (svg.isEmpty()) return {};
    const QColor ink = palette.color(QPalette::WindowText);
    // the drawings know two colours by their text; replacing it spares a second set of files
    svg.replace(kInk, ink.name().toLatin1());
    // the accent must stand out from the ink on either ground
    if (ink.lightness() > 127) svg.replace(kAccent, "#6db8ff");
    return IconOf(svg);
}

QIcon ProgramIcon() { return IconOf(Drawing(QStringLiteral("Brask"))); }

}  // namespace brask
