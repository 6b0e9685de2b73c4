// Draws the chart: titles, axes, curves, background and the readout line.
#pragma once

#include <qcustomplot.h>

#include <QDateTime>
#include <QImage>
#include <string>

#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/PixelView.h"

namespace brask {

class PlotOverlay;

// A view of one Chart. It holds nothing of the chart but what the drawing library needs to know
// before it draws: ranges, colours and texts. The curves are read while painting. What the library
// draws is kept as one picture; cursor and readout are painted over it, so that they can move
// without drawing anything else again.
class DynaPlot : public QCustomPlot {
    Q_OBJECT

  public:
    // Chart and locale must outlive the widget. Shows nothing before the first ShowChart().
    DynaPlot(const Chart& chart, const UserLocale& locale, QWidget* parent = nullptr);

    // Takes over the chart's whole state and draws it; a hidden widget draws once it is shown.
    void ShowChart();

    // Takes over where the axes stand, the cursor and the readout. Draws no curve again when the
    // axes have not moved; several moves before the next frame cost one drawing.
    void ShowView();

    // Where the readings of an axis are drawn, in the widget's pixels.
    PixelView ViewOf(ChartAxis axis) const;
    // A place in pixels as a part of the inside of the axes; outside of it below 0 or above 1.
    ChartPlace PlaceAt(const QPointF& pixels) const;

    // The chart as ShowChart() last took it over, drawn at this size in pixels, whatever the
    // widget's own size and the screen's pixel ratio. A side of less than one pixel counts as one.
    QImage Picture(QSize size);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // The frame that shows the focus comes and goes.
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // Rows above and below the axes: title and caption on top, the readout at the bottom.
    void AddTexts();
    // Draws everything but the overlay into frame_.
    void DrawFrame();
    // frame_ is of no use any more; the next painting draws it again.
    void Outdate();
    // Paints again where the overlay was and where it is now.
    void UpdateOverlay();
    // The parts of ShowChart. They only set what differs between charts; what never changes is set
    // once by the constructor.
    void ShowTitle();
    void ShowAxes();
    void ShowRanges();
    void ShowReadout();
    void ShowXAxis();
    void ShowValueAxis(QCPAxis& axis, const ChartAxisScale& scale);
    void ShowBackground();
    // Empty when there is no such file or it cannot be read as a picture; the file is read again
    // once it has changed.
    QPixmap BackgroundPicture();
    // How many date labels fit side by side under the widget in its present width, 2 to 16.
    std::size_t MostDateLabels() const;

    const Chart& chart_;
    const UserLocale& locale_;
    QCPTextElement* title_ = nullptr;  // these three belong to the plot's layout
    QCPTextElement* caption_ = nullptr;
    QCPTextElement* readout_ = nullptr;
    PlotOverlay* overlay_ = nullptr;
    // With the overlay and the readout; hidden but for pictures, since painting does their work.
    QCPLayer* overLayer_ = nullptr;
    QImage frame_;          // without an alpha channel: putting it on the screen is a plain copy
    bool outdated_ = true;  // frame_ does not show the chart as it is
    QRegion overlaid_;      // where the overlay was painted last
    ViewRecord shownView_;
    bool shownPicture_ = true;
    QPixmap picture_;  // the background, as read from pictureFile_
    std::string pictureFile_;
    QDateTime pictureChanged_;
};

}  // namespace brask
