#include "plot/PlotBuilder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "data/DateTime.h"
#include "data/Windows1252.h"
#include "plot/PlotTexts.h"

namespace brask {
namespace {

// Names of curves are read back to tell gas from temperature, so they are never translated.
constexpr const char* kGas = "Gas";
constexpr const char* kTemperature = "Temperature";
constexpr const char* kTempSuffix = " Temp";

// An empty continuous plot shows a day: 10 to 11 March 2003, from 08:00:00.
constexpr double kEmptyPlotBegin = 37690.0 + 8.0 / 24.0;

constexpr double kGasAxisMinimum = -0.1;
constexpr double kAxisMargin = 5;

struct TitleSize {
    std::size_t Longest;
    int Points;
};
constexpr std::array<TitleSize, 5> kTitleSizes = {{{35, 15}, {40, 12}, {45, 10}, {50, 8}, {60, 6}}};
constexpr int kSmallestTitle = 4;

std::size_t CharacterCount(const std::string& utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
        return (static_cast<unsigned>(c) & 0xC0) != 0x80;
    }));
}

int TitlePoints(const std::string& title) {
    const std::size_t length = CharacterCount(title);
    for (const TitleSize& size : kTitleSizes) {
        if (length <= size.Longest) return size.Points;
    }
    return kSmallestTitle;
}

CurveStyle StyleFor(std::size_t readings, bool markDataPoints) {
    if (markDataPoints) return CurveStyle::kLineWithMarkers;
    return readings < 2 ? CurveStyle::kPoint : CurveStyle::kLine;
}

std::shared_ptr<const CurvePyramid> PyramidOf(std::span<const double> values) {
    return std::make_shared<const CurvePyramid>(values);
}

std::span<const double> Part(std::span<const double> values, const ReadingRun& run) {
    return values.subspan(static_cast<std::size_t>(run.First), static_cast<std::size_t>(run.Count));
}

std::shared_ptr<const std::vector<double>> Joined(std::span<const double> values,
                                                  std::span<const ReadingRun> runs) {
    auto joined = std::make_shared<std::vector<double>>();
    for (const ReadingRun& run : runs) {
        const auto part = Part(values, run);
        joined->insert(joined->end(), part.begin(), part.end());
    }
    return joined;
}

void Paint(Curve& curve, ColorValue color, bool markDataPoints) {
    curve.Color = color;
    curve.Marker.Color = color;
    curve.Style = StyleFor(curve.X.size(), markDataPoints);
}

}  // namespace

PlotBuilder::PlotBuilder(Chart& chart, const DataSet& data, const UserLocale& locale,
                         const Texts& texts)
    : chart_(chart), data_(data), locale_(locale), texts_(texts) {}

void PlotBuilder::Rebuild(const PlotOptions& options) {
    chart_.Clear();
    chart_.Background = options.Background;
    chart_.Readout = texts_.Find(plot_texts::kNoPointSelected);
    extremes_ = {};
    periodStarts_.clear();

    switch (options.Layout) {
        case GraphType::kContinuous:
            BuildContinuous(options);
            break;
        case GraphType::kOverlapDays:
            LabelHours();
            BuildPeriods(GroupByDay(data_.Times(), locale_), options);
            break;
        case GraphType::kOverlapWeeks:
            LabelWeek(options.StartWeekOn);
            BuildPeriods(GroupByWeek(data_.Times(), options.StartWeekOn), options);
            break;
    }

    SetAxes(options);
    if (data_.ReadingCount > 0) SetTitles(options);
}

void PlotBuilder::BuildContinuous(const PlotOptions& options) {
    chart_.Labels.DateFormat = "%d-%b-%Y\n%X";
    gasColor_ = options.Colors.CurveColor(1);
    temperatureColor_ = options.Colors.CurveColor(2);
    chart_.X.SetRange(kEmptyPlotBegin, kEmptyPlotBegin + 1);
    if (data_.ReadingCount == 0) return;

    CurvePair pair;
    pair.Gas.Name = kGas;
    pair.Gas.X = data_.Times();
    pair.Gas.Y = data_.Gas();
    pair.Temperature.Name = kTemperature;
    pair.Temperature.X = pair.Gas.X;
    pair.Temperature.Y = data_.Temperatures();
    Paint(pair.Gas, gasColor_, options.MarkDataPoints);
    Paint(pair.Temperature, temperatureColor_, options.MarkDataPoints);

    const ValueRange times = AddPair(std::move(pair));
    chart_.X.SetRange(std::min(kLatestDisplayDate, times.Minimum),
                      std::max(kEarliestDisplayDate, times.Maximum));
}

void PlotBuilder::BuildPeriods(const PeriodGrouping& grouping, const PlotOptions& options) {
    int number = 0;
    for (const PeriodGrouping::Period& period : grouping.Periods) {
        const std::int32_t first = grouping.RunsOf(period).front().First;
        periodStarts_.push_back(first);
        CurvePair pair = PeriodCurves(grouping, period);
        pair.Gas.Name = FormatReadingDate(data_.Times()[static_cast<std::size_t>(first)]);
        pair.Temperature.Name = pair.Gas.Name + kTempSuffix;
        pair.Temperature.Line = LineStyle::kDotted;
        const ColorValue color = options.Colors.CurveColor(++number);
        Paint(pair.Gas, color, options.MarkDataPoints);
        Paint(pair.Temperature, color, options.MarkDataPoints);
        AddPair(std::move(pair));
    }
}

PlotBuilder::CurvePair PlotBuilder::PeriodCurves(const PeriodGrouping& grouping,
                                                 const PeriodGrouping::Period& period) const {
    const auto runs = grouping.RunsOf(period);
    CurvePair pair;
    pair.Gas.OwnX = grouping.X;
    if (runs.size() == 1) {
        pair.Gas.X = Part(*grouping.X, runs.front());
        pair.Gas.Y = Part(data_.Gas(), runs.front());
        pair.Temperature.Y = Part(data_.Temperatures(), runs.front());
    } else {
        pair.Gas.OwnX = Joined(*grouping.X, runs);
        pair.Gas.OwnY = Joined(data_.Gas(), runs);
        pair.Temperature.OwnY = Joined(data_.Temperatures(), runs);
        pair.Gas.X = *pair.Gas.OwnX;
        pair.Gas.Y = *pair.Gas.OwnY;
        pair.Temperature.Y = *pair.Temperature.OwnY;
    }
    pair.Temperature.X = pair.Gas.X;
    pair.Temperature.OwnX = pair.Gas.OwnX;
    return pair;
}

ValueRange PlotBuilder::AddPair(CurvePair pair) {
    pair.Gas.PyramidX = PyramidOf(pair.Gas.X);
    pair.Gas.PyramidY = PyramidOf(pair.Gas.Y);
    pair.Temperature.PyramidX = pair.Gas.PyramidX;
    pair.Temperature.PyramidY = PyramidOf(pair.Temperature.Y);
    pair.Temperature.Axis = ChartAxis::kRight;

    const ValueRange gas = pair.Gas.PyramidY->Whole();
    const ValueRange temperature = pair.Temperature.PyramidY->Whole();
    extremes_.GasMaximum = std::max(extremes_.GasMaximum, gas.Maximum);
    extremes_.TemperatureMinimum = std::min(extremes_.TemperatureMinimum, temperature.Minimum);
    extremes_.TemperatureMaximum = std::max(extremes_.TemperatureMaximum, temperature.Maximum);

    const ValueRange times = pair.Gas.PyramidX->Whole();
    chart_.AddCurve(std::move(pair.Gas));
    chart_.AddCurve(std::move(pair.Temperature));
    return times;
}

void PlotBuilder::LabelHours() {
    chart_.X.SetRange(0, 24);
    for (int hour = 0; hour <= 24; ++hour) {
        const std::string padded = "0" + std::to_string(hour % 24);
        chart_.Labels.Custom.push_back(
            {1.0 * hour, padded.substr(padded.size() - 2) + ":00", hour % 2 == 0});
    }
}

void PlotBuilder::LabelWeek(int startWeekOn) {
    chart_.X.SetRange(0, 7);
    const auto names = locale_.DayNames();
    for (std::size_t day = 0; day <= 7; ++day) {
        const std::size_t name = (day + (startWeekOn == 0 ? 0 : 1)) % 7;
        chart_.Labels.Custom.push_back({static_cast<double>(day), names[name], true});
    }
}

void PlotBuilder::SetAxes(const PlotOptions& options) {
    chart_.Y.SetRange(kGasAxisMinimum, extremes_.GasMaximum + kAxisMargin);
    chart_.Y1.SetRange(extremes_.TemperatureMinimum - kAxisMargin,
                       extremes_.TemperatureMaximum + kAxisMargin);
    chart_.X.Color = options.AxisLabels;
    chart_.Y.Color = options.AxisLabels;
    chart_.Y1.Color = options.AxisLabels;
    if (!options.ColorLabelsLikeLines) return;
    const bool continuous = options.Layout == GraphType::kContinuous;
    chart_.Y.Color = options.Colors.CurveColor(1);
    chart_.Y1.Color = options.Colors.CurveColor(continuous ? 2 : 1);
}

void PlotBuilder::SetTitles(const PlotOptions& options) {
    TitleBlock title;
    title.Title = texts_.Fill(
        plot_texts::kTitle,
        {Windows1252ToUtf8(data_.InstrumentName), Windows1252ToUtf8(data_.InstrumentSerialNumber)});
    title.FontSize = TitlePoints(title.Title);
    title.Caption = texts_.Fill(plot_texts::kCaption, {FormatReadingTime(data_.Times().front()),
                                                       FormatReadingTime(data_.Times().back())});
    chart_.Title = title;

    const bool continuous = options.Layout == GraphType::kContinuous;
    chart_.Y.Title = texts_.Fill(plot_texts::kGasAxis, {Windows1252ToUtf8(data_.InstrumentGas)});
    chart_.Y1.Title =
        texts_.Fill(continuous ? plot_texts::kTemperatureAxis : plot_texts::kDottedTemperatureAxis,
                    {options.TemperatureLabel});
}

}  // namespace brask
