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
#include "plot/ReadingPlaces.h"

namespace brask {

// Fills the chart; nothing else adds curves to it. It keeps no readings of its own: a rebuild
// starts from the data set each time, so a changed option needs no more than another rebuild.
class PlotBuilder {
  public:
    // All four are used by every rebuild and must outlive the builder.
    PlotBuilder(Chart& chart, const DataSet& data, const UserLocale& locale, const Texts& texts);

    // Clears the chart and builds it from the data set. Without readings: axes and no title.
    // The curves show the data set's own arrays: Clear() before those change.
    // The axes show everything again, whatever was in view before; the widget must be told to draw.
    // Costs a pass over the readings.
    void Rebuild(const PlotOptions& options);

    // An empty chart, and nothing kept of the data set's arrays: before those change.
    void Clear();

    // Of the last rebuild: its layout, and which reading each point is.
    GraphType Layout() const { return layout_; }
    const ReadingPlaces& Places() const { return places_; }
    // First reading of each period of the last overlapping rebuild, in order; empty for the
    // continuous layout.
    // Indexes into the data set; entry i belongs to the curves 2 i and 2 i + 1 of the chart.
    const std::vector<std::int32_t>& PeriodStarts() const { return periodStarts_; }
    // Colours of the two curves of the last continuous rebuild.
    ColorValue GasColor() const { return gasColor_; }
    ColorValue TemperatureColor() const { return temperatureColor_; }

  private:
    // Over all readings that are drawn.
    // The starting values count as if they were readings: the gas axis reaches 5 ppm at least, and
    // the temperature axis of a plot of hard frost still shows 0 degrees. Users know their plots
    // so.
    struct Extremes {
        double GasMaximum = 0;
        double TemperatureMinimum = 5000;
        double TemperatureMaximum = 0;
    };
    // What one period shows; both curves have the same X.
    struct CurvePair {
        Curve Gas;
        Curve Temperature;
    };

    // All readings as one pair of curves over a date axis.
    void BuildContinuous(const PlotOptions& options);
    // One pair of curves per day or week, laid over one another.
    void BuildPeriods(const PeriodGrouping& grouping, const PlotOptions& options);
    // The pair with its arrays, still without names, colours and pyramids.
    CurvePair PeriodCurves(const PeriodGrouping& grouping,
                           const PeriodGrouping::Period& period) const;
    // Builds the pyramids, widens the extremes and hands the pair to the chart; returns the range
    // of its X values.
    ValueRange AddPair(CurvePair pair);
    // The fixed X axes of the overlapping layouts, with or without readings.
    void LabelHours();
    void LabelWeek(int startWeekOn);
    // After all pairs are in: the value axes follow the extremes.
    void SetAxes(const PlotOptions& options);
    // Needs at least one reading: the caption names the first and the last.
    void SetTitles(const PlotOptions& options);

    Chart& chart_;
    const DataSet& data_;
    const UserLocale& locale_;
    const Texts& texts_;
    // Of the last rebuild, all of them.
    GraphType layout_ = GraphType::kContinuous;
    ReadingPlaces places_;
    Extremes extremes_;
    std::vector<std::int32_t> periodStarts_;
    ColorValue gasColor_;
    ColorValue temperatureColor_;
};

}  // namespace brask
