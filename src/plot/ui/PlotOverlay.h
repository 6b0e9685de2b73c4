// What lies over the curves: the cursor at the selected point, the zoom rectangle, the legend and
// the frame that shows the keyboard's focus.
#pragma once

#include <qcustomplot.h>

#include "plot/Chart.h"

namespace brask {

// Painted over the picture of the curves, so that moving the cursor does not draw them again. Reads
// the chart at each painting.
class PlotOverlay final : public QCPLayerable {
    Q_OBJECT

  public:
    // Owned by the plot. The layer must exist; all axes must belong to one frame.
    PlotOverlay(const Chart& chart, QCustomPlot& plot, const QString& layer);

    // Paints on the screen, with the frame of the focus; pictures get it through the layer,
    // without.
    void Paint(QCPPainter& painter);
    // Whatever a painting now would cover, but the frame of the focus, in the widget's pixels.
    QRegion Extent() const;

  protected:
    // Everything but the legend's letters stands on whole pixels.
    void applyDefaultAntialiasingHint(QCPPainter* painter) const override;
    QRect clipRect() const override;
    void draw(QCPPainter* painter) override;

  private:
    void DrawCursor(QCPPainter& painter) const;
    void DrawShape(QCPPainter& painter, const QPointF& at) const;
    void DrawFocus(QCPPainter& painter) const;
    void DrawRectangle(QCPPainter& painter) const;
    void DrawLegend(QCPPainter& painter) const;
    // Where the cursor stands; nothing when it is nowhere or out of sight.
    std::optional<QPointF> CursorPlace() const;

    const Chart& chart_;
    QCustomPlot& plot_;
};

}  // namespace brask
