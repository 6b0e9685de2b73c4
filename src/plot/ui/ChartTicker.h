// Ticks and labels of the chart's X axis: round dates, or the chart's own table.
#pragma once

#include <qcustomplot.h>

#include <cstddef>
#include <functional>

#include "platform/UserLocale.h"
#include "plot/Chart.h"

namespace brask {

// Reads the chart at each layout of the axis, so a changed table or format needs no new ticker.
// Chart and locale must outlive the plot that the axis belongs to.
class ChartTicker final : public QCPAxisTicker {
  public:
    // `mostLabels` says how many date labels have room side by side; asked at each layout.
    ChartTicker(const Chart& chart, const UserLocale& locale,
                std::function<std::size_t()> mostLabels);

    // Called by the axis; a hidden label is an empty text at its tick.
    // Never asks for steps of a fixed size: an axis over thousands of years must not get a tick a
    // second. There are no ticks between the labelled ones.
    void generate(const QCPRange& range, const QLocale& locale, QChar formatChar, int precision,
                  QVector<double>& ticks, QVector<double>* subTicks,
                  QVector<QString>* tickLabels) override;

  private:
    const Chart& chart_;
    const UserLocale& locale_;
    // May be asked before the widget has its final size.
    std::function<std::size_t()> mostLabels_;
};

}  // namespace brask
