#include "plot/ui/PlotOverlay.h"

#include <algorithm>

#include "plot/ui/AxesView.h"
#include "plot/ui/ChartColors.h"

namespace brask {
namespace {

constexpr double kCursorRadius = 6;  // pixels, for all shapes but the lines
constexpr int kMostLegendLines = 16;
constexpr int kLegendSample = 24;  // the piece of line in front of a name

QPointF InPixels(const QRect& rect, ChartPlace place) {
    return {rect.left() + place.X * rect.width(), rect.top() + place.Y * rect.height()};
}

}  // namespace

PlotOverlay::PlotOverlay(const Chart& chart, QCustomPlot& plot, const QString& layer)
    : QCPLayerable(&plot, layer), chart_(chart), plot_(plot) {}

void PlotOverlay::applyDefaultAntialiasingHint(QCPPainter* painter) const {
    painter->setAntialiasing(false);
}

QRect PlotOverlay::clipRect() const { return plot_.axisRect()->rect(); }

void PlotOverlay::draw(QCPPainter* painter) {
    DrawCursor(*painter);
    DrawRectangle(*painter);
    if (chart_.LegendShown) DrawLegend(*painter);
}

void PlotOverlay::Paint(QCPPainter& painter) {
    painter.save();
    painter.setClipRect(clipRect());
    draw(&painter);
    if (plot_.hasFocus()) DrawFocus(painter);
    painter.restore();
}

void PlotOverlay::DrawFocus(QCPPainter& painter) const {
    painter.setPen(QPen(plot_.palette().color(QPalette::Highlight), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(clipRect().adjusted(2, 2, -3, -3));
}

QRegion PlotOverlay::Extent() const {
    const QRect axes = clipRect();
    // what is seldom there is not worth being told apart
    if (chart_.LegendShown || chart_.Rectangle) return axes;
    const auto place = chart_.Cursor.Shown ? CursorPlace() : std::nullopt;
    if (!place) return {};
    // a line's width on each side, and what smoothing adds
    const int radius = static_cast<int>(kCursorRadius) + 3;
    const QPoint at = place->toPoint();
    QRegion covered(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius);
    covered |= QRect(at.x() - 2, axes.top(), 4, axes.height());
    covered |= QRect(axes.left(), at.y() - 2, axes.width(), 4);
    return covered & axes;
}

std::optional<QPointF> PlotOverlay::CursorPlace() const {
    if (chart_.Curves().empty()) return std::nullopt;
    if (chart_.Cursor.Floating) return InPixels(clipRect(), *chart_.Cursor.Floating);
    const auto selected = chart_.Selection();
    if (!selected) return std::nullopt;
    const bool left = chart_.Curves()[chart_.Selected->Curve].Axis == ChartAxis::kLeft;
    const PixelView view = ViewOfAxes(*plot_.xAxis, left ? *plot_.yAxis : *plot_.yAxis2);
    const QPointF place(view.PixelX(selected->X), view.PixelY(selected->Y));
    // a little room, so that a point on the frame has its cursor
    const QRectF near = QRectF(clipRect()).adjusted(-2, -2, 2, 2);
    if (!near.contains(place)) return std::nullopt;
    return place;
}

void PlotOverlay::DrawCursor(QCPPainter& painter) const {
    if (!chart_.Cursor.Shown) return;
    const auto place = CursorPlace();
    if (!place) return;
    // the colour of the labels is readable on the background that the user has chosen
    const QColor color = ToColor(chart_.X.Color);
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    DrawShape(painter, {std::floor(place->x()), std::floor(place->y())});
}

void PlotOverlay::DrawShape(QCPPainter& painter, const QPointF& at) const {
    const QRect axes = clipRect();
    const QRectF around(at.x() - kCursorRadius, at.y() - kCursorRadius, 2 * kCursorRadius,
                        2 * kCursorRadius);
    const CursorStyle style = chart_.Cursor.Style;
    const bool vertical = style == CursorStyle::kVerticalLine;
    const bool horizontal = style == CursorStyle::kHorizontalLine;
    const bool cross = style == CursorStyle::kCross;
    if (vertical || cross) {
        painter.drawLine(QPointF(at.x(), axes.top()), QPointF(at.x(), axes.bottom()));
    }
    if (horizontal || cross) {
        painter.drawLine(QPointF(axes.left(), at.y()), QPointF(axes.right(), at.y()));
    }
    if (style == CursorStyle::kSquare) painter.drawRect(around);
    if (style == CursorStyle::kFilledBox) painter.fillRect(around, painter.pen().color());
    painter.setAntialiasing(true);
    if (style == CursorStyle::kCircle) painter.drawEllipse(around);
    if (style == CursorStyle::kDiamond) {
        const double radius = kCursorRadius + 1;
        const QPointF corners[] = {at - QPointF(0, radius), at + QPointF(radius, 0),
                                   at + QPointF(0, radius), at - QPointF(radius, 0)};
        painter.drawPolygon(corners, 4);
    }
    painter.setAntialiasing(false);
}

void PlotOverlay::DrawRectangle(QCPPainter& painter) const {
    if (!chart_.Rectangle) return;
    const QRectF rectangle = QRectF(InPixels(clipRect(), chart_.Rectangle->From),
                                    InPixels(clipRect(), chart_.Rectangle->To))
                                 .normalized();
    QColor fill = plot_.palette().color(QPalette::Highlight);
    painter.setPen(QPen(fill, 1));
    fill.setAlpha(40);
    painter.setBrush(fill);
    painter.drawRect(rectangle);
}

void PlotOverlay::DrawLegend(QCPPainter& painter) const {
    const auto curves = chart_.Curves();
    const int lines = std::min(kMostLegendLines, static_cast<int>(curves.size()));
    if (lines == 0) return;
    const QFont font(QStringLiteral("arial"), 9);
    const QFontMetrics metrics(font);
    const auto name = [&](int line) {
        // more curves than lines: the last line says that there are more
        const bool more = line == kMostLegendLines - 1 && static_cast<int>(curves.size()) > lines;
        return more ? QStringLiteral("…")
                    : QString::fromStdString(curves[static_cast<std::size_t>(line)].Name);
    };
    int width = 0;
    for (int line = 0; line < lines; ++line) {
        width = std::max(width, metrics.horizontalAdvance(name(line)));
    }
    const int height = metrics.height();
    const QRect axes = clipRect();
    const QRect box(axes.right() - width - kLegendSample - 26, axes.top() + 8,
                    width + kLegendSample + 18, lines * height + 8);
    painter.setPen(QPen(ToColor(chart_.X.Color), 1));
    painter.setBrush(ToColor(chart_.Background.Inside));
    painter.drawRect(box);
    painter.setFont(font);
    for (int line = 0; line < lines; ++line) {
        const Curve& curve = curves[static_cast<std::size_t>(line)];
        const int top = box.top() + 4 + line * height;
        QPen sample(ToColor(curve.Color), 2);
        if (curve.Line == LineStyle::kDotted) sample.setDashPattern({1, 2});
        painter.setPen(sample);
        const QPointF begin(box.left() + 6, top + height / 2.0);
        painter.drawLine(begin, begin + QPointF(kLegendSample, 0));
        painter.setPen(ToColor(chart_.X.Color));
        painter.drawText(box.left() + 12 + kLegendSample, top + metrics.ascent(), name(line));
    }
}

}  // namespace brask
