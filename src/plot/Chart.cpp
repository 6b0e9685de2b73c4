#include "plot/Chart.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace brask {
namespace {

// Half a second at today's dates, the finest that a time stamp tells.
constexpr double kFinestSpan = 1e-10;

// Where "temp" begins in any letter case; npos when it does not occur.
std::size_t FindTemp(const std::string& name) {
    constexpr std::string_view kTemp = "temp";
    // Letters are folded by hand: the C library's tolower follows the locale in force, and a file
    // must be read alike everywhere.
    const auto same = [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
    };
    const auto found = std::search(name.begin(), name.end(), kTemp.begin(), kTemp.end(), same);
    return found == name.end() ? std::string::npos : static_cast<std::size_t>(found - name.begin());
}

}  // namespace

bool ChartAxisScale::SetMinimum(double minimum) {
    if (!std::isfinite(minimum) || minimum > range_.Maximum) return false;
    range_.Minimum = minimum;
    return true;
}

bool ChartAxisScale::SetMaximum(double maximum) {
    if (!std::isfinite(maximum) || maximum < range_.Minimum) return false;
    range_.Maximum = maximum;
    return true;
}

bool IsShowable(const AxisRange& range) {
    if (!std::isfinite(range.Minimum) || !std::isfinite(range.Maximum)) return false;
    // ends may be so far apart that their distance overflows
    const double span = range.Maximum / 2 - range.Minimum / 2;
    const double largest = std::max(std::abs(range.Minimum), std::abs(range.Maximum));
    return span > 0 && std::isfinite(2 * span) && span > largest * kFinestSpan;
}

bool Chart::ShowView(const ViewRecord& view) {
    // What the plot was built with can always be shown: a single reading has an X range of no
    // width, and moving Y must work there too.
    const auto accepted = [](const AxisRange& range, const AxisRange& shown,
                             const AxisRange& original) -> std::optional<AxisRange> {
        if (range == original || IsShowable(range)) return range;
        // the temperature axis is inverted where no temperature is a number: it stays, and does not
        // keep the others from moving
        if (range == shown || !IsShowable(shown)) return shown;
        return std::nullopt;
    };
    const auto x = accepted(view.X, X.Range(), Original.X);
    const auto y = accepted(view.Y, Y.Range(), Original.Y);
    const auto y1 = accepted(view.Y1, Y1.Range(), Original.Y1);
    if (!x || !y || !y1) return false;
    SetView({*x, *y, *y1});
    return true;
}

void Chart::SetView(const ViewRecord& view) {
    X.SetRange(view.X.Minimum, view.X.Maximum);
    Y.SetRange(view.Y.Minimum, view.Y.Maximum);
    Y1.SetRange(view.Y1.Minimum, view.Y1.Maximum);
}

std::optional<Chart::SelectedValues> Chart::Selection() const {
    if (!Selected) return std::nullopt;
    const Curve& curve = curves_[Selected->Curve];
    return SelectedValues{curve.X[Selected->Point], curve.Y[Selected->Point]};
}

void Chart::Clear() {
    RemoveCurves();
    X = {};
    Y = {};
    Y1 = {};
    Labels = {};
    Title.reset();
}

void Chart::RemoveCurves() {
    // a year of overlapping days leaves a long list behind that the next layout does not need
    curves_ = {};
    Selected.reset();
    Rectangle.reset();
    ZoomHistory.clear();
}

bool IsTemperatureCurve(const std::string& name) { return FindTemp(name) != std::string::npos; }

std::string PeriodName(const std::string& name) {
    const std::string front = name.substr(0, FindTemp(name));
    const auto first = front.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return front.substr(first, front.find_last_not_of(' ') - first + 1);
}

}  // namespace brask
