#include "plot/Chart.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace brask {
namespace {

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
}

bool IsTemperatureCurve(const std::string& name) { return FindTemp(name) != std::string::npos; }

std::string PeriodName(const std::string& name) {
    const std::string front = name.substr(0, FindTemp(name));
    const auto first = front.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return front.substr(first, front.find_last_not_of(' ') - first + 1);
}

}  // namespace brask
