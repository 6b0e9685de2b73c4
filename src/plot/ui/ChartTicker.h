// Ticks and labels of the chart's X axis: round dates, or the chart's own table.
#pragma once

#include <qcustomplot.h>

#include <cstddef>
#include <functional>

#include "platform/UserLocale.h"
#include "plot/Chart.h"

namespace brask {

class ChartTicker final : public QCPAxisTicker {
  public:
    // `mostLabels` says how many date labels have room side by side; asked at each layout.
    ChartTicker(const Chart& chart, const UserLocale& locale,
                std::function<std::size_t()> mostLabels);

    // Called by the axis; a hidden label is an empty text at its tick.
    void generate(const QCPRange& range, const QLocale& locale, QChar formatChar, int precision,
                  QVector<double>& ticks, QVector<double>* subTicks,
                  QVector<QString>* tickLabels) override;

  private:
    const Chart& chart_;
    const UserLocale& locale_;
    std::function<std::size_t()> mostLabels_;
};

}  // namespace brask
