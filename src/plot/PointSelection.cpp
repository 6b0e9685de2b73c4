#include "plot/PointSelection.h"

#include "data/DateTime.h"
#include "data/NumberText.h"
#include "data/Windows1252.h"
#include "plot/PlotTexts.h"

namespace brask {

using namespace plot_texts;

void PointSelection::PointSelected(ChartPoint point) {
    if (suppressed_ > 0) return;
    const Curve& curve = parts_.Plot.Curves()[point.Curve];
    SelectedReading selected;
    selected.Place = point;
    selected.X = curve.X[point.Point];
    selected.Y = curve.Y[point.Point];
    selected.IsTemperature = IsTemperatureCurve(curve.Name);
    selected.PeriodName = PeriodName(curve.Name);
    selected.Reading = parts_.Builder.Places().ReadingOf(point);
    selected.Readout = ReadoutOf(selected);
    parts_.Plot.Readout = selected.Readout;
    if (current_ == selected) return;
    current_ = std::move(selected);
    changed_();
}

void PointSelection::Forget() {
    if (!current_) return;
    current_.reset();
    changed_();
}

std::string PointSelection::ReadoutOf(const SelectedReading& selected) const {
    const GraphType layout = parts_.Builder.Layout();
    if (layout == GraphType::kOverlapDays) return DayReadout(selected);
    if (!selected.Reading) return parts_.Words.Find(kDateNotLocated);
    // of the reading itself: in a week the position on the axis says nothing about the date
    const std::string time = FormatReadingTime(parts_.Data.Times()[*selected.Reading]);
    const std::string value = FormatPlainNumber(selected.Y);
    if (selected.IsTemperature) {
        return parts_.Words.Fill(kTemperaturePoint, {time, value, parts_.Unit.Label()});
    }
    if (layout == GraphType::kOverlapWeeks) return parts_.Words.Fill(kWeekGasPoint, {time, value});
    return parts_.Words.Fill(kGasPoint,
                             {time, Windows1252ToUtf8(parts_.Data.InstrumentGas), value});
}

std::string PointSelection::DayReadout(const SelectedReading& selected) const {
    const std::string time = parts_.Locale.LongTime(CivilFromSerial(selected.X / 24));
    const std::string value = FormatPlainNumber(selected.Y);
    if (selected.IsTemperature) {
        return parts_.Words.Fill(kDayTemperaturePoint,
                                 {selected.PeriodName, time, value, parts_.Unit.Label()});
    }
    return parts_.Words.Fill(kDayGasPoint, {selected.PeriodName, time, value});
}

}  // namespace brask
