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

// Just below 0, so that readings of 0 lie inside the axes and not on their frame.
constexpr double kGasAxisMinimum = -0.1;
constexpr double kAxisMargin = 5;

struct TitleSize {
    std::size_t Longest;
    int Points;
};
constexpr std::array<TitleSize, 5> kTitleSizes = {{{35, 15}, {40, 12}, {45, 10}, {50, 8}, {60, 6}}};
constexpr int kSmallestTitle = 4;

// Continuation bytes do not count: the title has a "©" in it, and its size goes by what is seen.
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
    // a lone reading has no line to be seen by, so it becomes a point even without markers
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

void PlotBuilder::Clear() {
    chart_.Clear();
    periodStarts_.clear();
    places_ = {};
}

void PlotBuilder::Rebuild(const PlotOptions& options) {
    Clear();
    // Clear leaves these two alone, so they are replaced as a whole
    chart_.Background = options.Background;
    chart_.Readout = texts_.Find(plot_texts::kNoPointSelected);
    extremes_ = {};
    layout_ = options.Layout;

    switch (options.Layout) {
        case GraphType::kContinuous:
            BuildContinuous(options);
            break;
        // the axis first: it is the same when there are no readings and no periods
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
    chart_.Original = chart_.View();
    // a title over empty axes would promise data
    if (data_.ReadingCount > 0) SetTitles(options);
}

void PlotBuilder::BuildContinuous(const PlotOptions& options) {
    chart_.Labels.DateFormat = "%d-%b-%Y\n%X";
    gasColor_ = options.Colors.CurveColor(1);
    temperatureColor_ = options.Colors.CurveColor(2);
    // colours and range before the way out: an empty plot has an axis and label colours too
    chart_.X.SetRange(kEmptyPlotBegin, kEmptyPlotBegin + 1);
    if (data_.ReadingCount == 0) return;

    CurvePair pair;
    pair.Gas.Name = kGas;
    // the data set's own arrays: ten million readings are not copied for being drawn
    pair.Gas.X = data_.Times();
    pair.Gas.Y = data_.Gas();
    pair.Temperature.Name = kTemperature;
    pair.Temperature.X = pair.Gas.X;
    pair.Temperature.Y = data_.Temperatures();
    Paint(pair.Gas, gasColor_, options.MarkDataPoints);
    Paint(pair.Temperature, temperatureColor_, options.MarkDataPoints);

    const ValueRange times = AddPair(std::move(pair));
    places_ = ReadingPlaces(data_.Times(), chart_.Curves().front().PyramidX);
    // The search for the first and last moment starts from the bounds of the dates that can be
    // chosen. For a file that lies wholly before 2000 the axis so reaches up to 2000, as it always
    // has.
    chart_.X.SetRange(std::min(kLatestDisplayDate, times.Minimum),
                      std::max(kEarliestDisplayDate, times.Maximum));
}

void PlotBuilder::BuildPeriods(const PeriodGrouping& grouping, const PlotOptions& options) {
    int number = 0;
    for (const PeriodGrouping::Period& period : grouping.Periods) {
        const std::int32_t first = grouping.RunsOf(period).front().First;
        periodStarts_.push_back(first);
        // a period is called by the date of its first reading, also a week
        CurvePair pair = PeriodCurves(grouping, period);
        pair.Gas.Name = FormatReadingDate(data_.Times()[static_cast<std::size_t>(first)]);
        pair.Temperature.Name = pair.Gas.Name + kTempSuffix;
        pair.Temperature.Line = LineStyle::kDotted;
        const ColorValue color = options.Colors.CurveColor(++number);
        Paint(pair.Gas, color, options.MarkDataPoints);
        Paint(pair.Temperature, color, options.MarkDataPoints);
        AddPair(std::move(pair));
    }
    if (data_.ReadingCount > 0) places_ = ReadingPlaces(data_.Times(), grouping);
}

PlotBuilder::CurvePair PlotBuilder::PeriodCurves(const PeriodGrouping& grouping,
                                                 const PeriodGrouping::Period& period) const {
    const auto runs = grouping.RunsOf(period);
    CurvePair pair;
    // the grouping itself goes away after the rebuild; its positions stay for as long as a curve
    // shows them
    pair.Gas.OwnX = grouping.X;
    if (runs.size() == 1) {
        pair.Gas.X = Part(*grouping.X, runs.front());
        pair.Gas.Y = Part(data_.Gas(), runs.front());
        pair.Temperature.Y = Part(data_.Temperatures(), runs.front());
    } else {
        // A curve needs arrays without gaps. Dates in several runs are rare, so the copy is as
        // well.
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
    // the same X values: one pyramid in four would be built in vain
    pair.Temperature.PyramidX = pair.Gas.PyramidX;
    pair.Temperature.PyramidY = PyramidOf(pair.Temperature.Y);
    pair.Temperature.Axis = ChartAxis::kRight;

    // the tops of the pyramids are the extremes already; a period without a finite value has
    // infinities there that change nothing
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
    chart_.Labels.UnitsPerDay = 24;
    for (int hour = 0; hour <= 24; ++hour) {
        // Every hour has its tick, every other one its label: 25 labels would run into each other.
        // The last reads 00:00, the midnight that ends the day.
        const std::string padded = "0" + std::to_string(hour % 24);
        chart_.Labels.Custom.push_back(
            {1.0 * hour, padded.substr(padded.size() - 2) + ":00", hour % 2 == 0});
    }
}

void PlotBuilder::LabelWeek(int startWeekOn) {
    chart_.X.SetRange(0, 7);
    chart_.Labels.UnitsPerDay = 1;
    const auto names = locale_.DayNames();
    for (std::size_t day = 0; day <= 7; ++day) {
        // the eighth label is the first day again: it ends the week
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
    // an overlapping period has one colour for both its curves; that of the first stands for all
    chart_.Y.Color = options.Colors.CurveColor(1);
    chart_.Y1.Color = options.Colors.CurveColor(continuous ? 2 : 1);
}

void PlotBuilder::SetTitles(const PlotOptions& options) {
    TitleBlock title;
    title.Title = texts_.Fill(
        plot_texts::kTitle,
        // header texts are kept as the bytes of the file
        {Windows1252ToUtf8(data_.InstrumentName), Windows1252ToUtf8(data_.InstrumentSerialNumber)});
    // long serial numbers get smaller letters instead of a cut title
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
