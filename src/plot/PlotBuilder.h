// Turns the data set into the curves, axes and titles of the chart, in one of three layouts.
#pragma once

#include <cstdint>
#include <vector>

#include "data/DataSet.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/PeriodGrouping.h"
#include "plot/PlotOptions.h"

namespace brask {

class PlotBuilder {
  public:
    // All four are used by every rebuild and must outlive the builder.
    PlotBuilder(Chart& chart, const DataSet& data, const UserLocale& locale, const Texts& texts);

    // Clears the chart and builds it from the data set. Without readings: axes and no title.
    // The curves show the data set's own arrays: remove them before those change.
    void Rebuild(const PlotOptions& options);

    // First reading of each period of the last overlapping rebuild, in order; empty for the
    // continuous layout.
    const std::vector<std::int32_t>& PeriodStarts() const { return periodStarts_; }
    // Colours of the two curves of the last continuous rebuild.
    ColorValue GasColor() const { return gasColor_; }
    ColorValue TemperatureColor() const { return temperatureColor_; }

  private:
    // Over all readings that are drawn.
    struct Extremes {
        double GasMaximum = 0;
        double TemperatureMinimum = 5000;
        double TemperatureMaximum = 0;
    };
    struct CurvePair {
        Curve Gas;
        Curve Temperature;
    };

    void BuildContinuous(const PlotOptions& options);
    void BuildPeriods(const PeriodGrouping& grouping, const PlotOptions& options);
    CurvePair PeriodCurves(const PeriodGrouping& grouping,
                           const PeriodGrouping::Period& period) const;
    ValueRange AddPair(CurvePair pair);
    void LabelHours();
    void LabelWeek(int startWeekOn);
    void SetAxes(const PlotOptions& options);
    void SetTitles(const PlotOptions& options);

    Chart& chart_;
    const DataSet& data_;
    const UserLocale& locale_;
    const Texts& texts_;
    Extremes extremes_;
    std::vector<std::int32_t> periodStarts_;
    ColorValue gasColor_;
    ColorValue temperatureColor_;
};

}  // namespace brask
