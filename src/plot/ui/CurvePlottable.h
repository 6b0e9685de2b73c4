// Paints all curves of the chart, in their order, within the axes.
#pragma once

#include <qcustomplot.h>

#include "plot/Chart.h"
#include "plot/CurveShape.h"

namespace brask {

// One plottable serves any number of curves. It reads the chart at each painting, so the curves
// must be gone from the chart before their arrays are. The axes must have drawable ranges.
class CurvePlottable final : public QCPAbstractPlottable {
    Q_OBJECT

  public:
    // Owned by the plot of the axes.
    CurvePlottable(const Chart& chart, QCPAxis* xAxis, QCPAxis* leftAxis, QCPAxis* rightAxis);

    // Selecting readings is not the drawing library's work: always -1.
    double selectTest(const QPointF& position, bool onlySelectable,
                      QVariant* details) const override;
    // Ranges are set by the chart, never derived from here: never found.
    QCPRange getKeyRange(bool& foundRange, QCP::SignDomain signDomain) const override;
    QCPRange getValueRange(bool& foundRange, QCP::SignDomain signDomain,
                           const QCPRange& keyRange) const override;

  protected:
    // Called by the plot at each replot and for each picture, with the painter clipped to the
    // inside of the axes.
    void draw(QCPPainter* painter) override;
    // Draws nothing: the plot has no legend.
    void drawLegendIcon(QCPPainter* painter, const QRectF& rect) const override;

  private:
    // The view of the axes that the curve belongs to, as they stand now.
    PixelView ViewOf(const Curve& curve) const;
    // One curve: its lines, then its spans, and markers on top.
    void Paint(QCPPainter& painter, const Curve& curve) const;

    const Chart& chart_;
    // All three axes belong to the plot, which outlives its plottables.
    QCPAxis* leftAxis_;
    QCPAxis* rightAxis_;
};

}  // namespace brask
