#include "plot/ui/CurvePlottable.h"

#include <algorithm>
#include <cmath>

#include "plot/ui/AxesView.h"
#include "plot/ui/ChartColors.h"

namespace brask {
namespace {

void PaintLines(QCPPainter& painter, const PixelPolylines& lines) {
    QVector<QPointF> points;
    for (std::size_t i = 0; i < lines.Count(); ++i) {
        // keeps its memory from polyline to polyline
        points.clear();
        for (const PixelPoint& point : lines[i]) points.append(QPointF(point.X, point.Y));
        painter.drawPolyline(points.constData(), static_cast<int>(points.size()));
    }
}

void PaintSpans(QCPPainter& painter, const Curve& curve, std::span<const PixelSpan> spans) {
    const QColor color = ToColor(curve.Color);
    // Rectangles, not lines: pens wider than one pixel are what makes long curves slow to draw.
    const int width = std::max(1, static_cast<int>(std::lround(curve.LineWidth)));
    for (const PixelSpan& span : spans) {
        const int top = static_cast<int>(std::floor(span.Top));
        const int bottom = static_cast<int>(std::floor(span.Bottom));
        // as tall as the pen is wide at least, so that a level stretch is not thinner than a line
        painter.fillRect(span.X - width / 2, top, width, bottom - top + width, color);
    }
}

void PaintMarkers(QCPPainter& painter, const Curve& curve, const CurveShape& shape) {
    // side by side, full markers would bury the curve
    const double size = shape.Dense ? std::min(curve.Marker.Size, 3.0) : curve.Marker.Size;
    const int pixels = std::max(1, static_cast<int>(std::lround(size)));
    const QColor color = ToColor(curve.Marker.Color);
    for (const PixelPoint& point : shape.Markers) {
        painter.fillRect(static_cast<int>(std::floor(point.X)) - pixels / 2,
                         static_cast<int>(std::floor(point.Y)) - pixels / 2, pixels, pixels, color);
    }
}

}  // namespace

CurvePlottable::CurvePlottable(const Chart& chart, QCPAxis* xAxis, QCPAxis* leftAxis,
                               QCPAxis* rightAxis)
    : QCPAbstractPlottable(xAxis, leftAxis),
      chart_(chart),
      leftAxis_(leftAxis),
      rightAxis_(rightAxis) {
    // readings are selected through the chart; the library must not mark anything by itself
    setSelectable(QCP::stNone);
}

double CurvePlottable::selectTest(const QPointF& /*position*/, bool /*onlySelectable*/,
                                  QVariant* /*details*/) const {
    return -1;
}

QCPRange CurvePlottable::getKeyRange(bool& foundRange, QCP::SignDomain /*signDomain*/) const {
    foundRange = false;
    return {};
}

QCPRange CurvePlottable::getValueRange(bool& foundRange, QCP::SignDomain /*signDomain*/,
                                       const QCPRange& /*keyRange*/) const {
    foundRange = false;
    return {};
}

void CurvePlottable::drawLegendIcon(QCPPainter* /*painter*/, const QRectF& /*rect*/) const {}

PixelView CurvePlottable::ViewOf(const Curve& curve) const {
    // one plottable serves both value axes; the library itself knows only the left one
    const QCPAxis& valueAxis = curve.Axis == ChartAxis::kLeft ? *leftAxis_ : *rightAxis_;
    return ViewOfAxes(*mKeyAxis, valueAxis);
}

void CurvePlottable::draw(QCPPainter* painter) {
    for (const Curve& curve : chart_.Curves()) Paint(*painter, curve);
}

void CurvePlottable::Paint(QCPPainter& painter, const Curve& curve) const {
    const CurveShape shape = ShapeOf(curve, ViewOf(curve));
    QPen pen(ToColor(curve.Color), curve.LineWidth);
    if (curve.Line == LineStyle::kDotted) pen.setDashPattern({1, 2});
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    // a dense curve is many short strokes: smoothing them takes time and shows nothing
    painter.setAntialiasing(!shape.Dense);
    PaintLines(painter, shape.Lines);
    // spans and markers stand on whole pixels; smoothed they would blur and lose their colour
    painter.setAntialiasing(false);
    PaintSpans(painter, curve, shape.Spans);
    PaintMarkers(painter, curve, shape);
}

}  // namespace brask
