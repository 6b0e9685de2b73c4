// `Scroll1`: the visible X range as a part of the whole range.
#pragma once

#include <QScrollBar>

#include "plot/Chart.h"

namespace brask {

class PlotScrollBar final : public QScrollBar {
    Q_OBJECT

  public:
    explicit PlotScrollBar(QWidget* parent);

    // Takes over which part of the original range is in view; sends no signal.
    void ShowView(const Chart& chart);

  signals:
    // By the user: the view shall begin at this X value.
    void Scrolled(double minimum);

  private:
    // A step of the bar in the axis's unit; 0 while there is nothing to scroll.
    double unit_ = 0;
    double origin_ = 0;
};

}  // namespace brask
