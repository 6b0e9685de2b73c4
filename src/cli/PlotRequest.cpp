#include "cli/PlotRequest.h"

#include <array>
#include <charconv>

#include "cli/CliTexts.h"
#include "data/DateTime.h"
#include "plot/PictureFormat.h"

namespace brask {
namespace {

using namespace cli_texts;

constexpr int kLongestSide = 16384;     // pixels
constexpr int kMostPixels = 100000000;  // 400 MB while it is drawn

constexpr auto kOptions = std::to_array<OptionRow>({
    {"layout", OptionKind::kChoice, "continuous|days|weeks",
     TextRow("cli", "how readings are laid out, instead of the stored graph type")},
    {"start-week", OptionKind::kChoice, "sunday|monday",
     TextRow("cli", "first day of the week in the weeks layout, instead of the stored one")},
    {"no-data-points", OptionKind::kSwitch, "",
     TextRow("cli", "draw lines without a mark per reading")},
    {"o", OptionKind::kText, "PICTURE",
     TextRow("cli", "the .bmp or .png file to write; it is replaced")},
    {"size", OptionKind::kText, "WxH", TextRow("cli", "width and height in pixels; 1600x900")},
    {"from", OptionKind::kText, "TIME",
     TextRow("cli", "begin the X axis here: a date, in the days layout a time of day")},
    {"to", OptionKind::kText, "TIME", TextRow("cli", "end the X axis here")},
});
// the first rows of the table, which `curves` shares
constexpr std::size_t kLayoutOptions = 3;

std::string Quoted(std::string_view word) { return "\"" + std::string(word) + "\""; }

std::optional<int> SideOf(std::string_view text) {
    int side = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), side);
    const bool whole = error == std::errc() && stop == text.data() + text.size();
    return whole && side >= 1 && side <= kLongestSide ? std::optional(side) : std::nullopt;
}

bool ReadSize(std::string_view text, PlotRequest& request) {
    const auto cross = text.find('x');
    if (cross == std::string_view::npos) return false;
    const auto width = SideOf(text.substr(0, cross));
    const auto height = SideOf(text.substr(cross + 1));
    // by division: the product of two sides may not fit an int
    if (!width || !height || *height > kMostPixels / *width) return false;
    request.Width = *width;
    request.Height = *height;
    return true;
}

// One end of the period on the X axis.
std::optional<double> EndOf(const std::string& text, GraphType layout, LongDateOrder order) {
    constexpr double kHoursPerDay = 24.0;
    if (layout == GraphType::kOverlapDays) {
        const auto time = ParseTimeOfDay(text);
        return time ? std::optional(*time * kHoursPerDay) : std::nullopt;
    }
    const auto date = ParseDateTime(text, order);
    const bool inBounds = date && *date >= kEarliestDisplayDate && *date <= kLatestDisplayDate;
    return inBounds ? date : std::nullopt;
}

}  // namespace

std::span<const OptionRow> CurvesOptions() { return std::span(kOptions).first(kLayoutOptions); }

std::span<const OptionRow> DrawingOptions() { return kOptions; }

void OverrideLayout(const CommandLine& line, PlotOptions& options) {
    // the words stand in the order of the enumeration
    if (const auto layout = line.Choice("layout")) options.Layout = static_cast<GraphType>(*layout);
    if (const auto start = line.Choice("start-week")) options.StartWeekOn = *start;
    if (line.Has("no-data-points")) options.MarkDataPoints = false;
}

Result<PlotRequest> ReadPlotRequest(const CommandLine& line, const Texts& texts) {
    PlotRequest request;
    const auto picture = line.Value("o");
    if (!picture) {
        const CommandRow& command = *line.Command();
        return Error{0, texts.Fill(kOptionMissing, {"-o", command.Name, command.Arguments})};
    }
    request.Picture = *picture;
    // refused before any work: a format must not be guessed after a long drawing
    if (!PictureFormatOf(*picture)) return Error{0, texts.Fill(kNotAPicture, {Quoted(*picture)})};
    if (const auto size = line.Value("size"); size && !ReadSize(*size, request)) {
        return Error{0, texts.Fill(kNotASize, {Quoted(*size), std::to_string(kLongestSide),
                                               std::to_string(kMostPixels)})};
    }
    request.From = line.Value("from");
    request.To = line.Value("to");
    // One end alone would leave the other to the data, so that a series of pictures would not
    // compare.
    if (request.From.has_value() != request.To.has_value()) {
        return Error{0, texts.Find(kHalfAPeriod)};
    }
    return request;
}

Result<std::optional<AxisRange>> ReadPeriod(const PlotRequest& request, GraphType layout,
                                            LongDateOrder order, const Texts& texts) {
    // No period: the axis spans all readings.
    if (!request.From) return std::optional<AxisRange>();
    if (layout == GraphType::kOverlapWeeks) return Error{0, texts.Find(kNoPeriodInWeeks)};
    const TextRow wanted = layout == GraphType::kOverlapDays ? kTimeOfDayWanted : kDateWanted;
    const auto from = EndOf(*request.From, layout, order);
    const auto to = EndOf(*request.To, layout, order);
    if (!from || !to) {
        return Error{0, texts.Fill(kNotATime, {from ? "--to" : "--from",
                                               Quoted(from ? *request.To : *request.From),
                                               texts.Find(wanted)})};
    }
    // equal ends, too: an axis of no width shows nothing
    if (*from >= *to) return Error{0, texts.Find(kPeriodNotInOrder)};
    return std::optional(AxisRange{*from, *to});
}

}  // namespace brask
