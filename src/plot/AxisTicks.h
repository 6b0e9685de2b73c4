// Where the date axis has its ticks, and what they say.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/UserLocale.h"
#include "plot/Chart.h"

namespace brask {

// Round moments within the range (serials; either end may be the greater), ascending: whole
// seconds, minutes, hours, days, months or years, whichever step comes first with at most `most`
// ticks. A range narrower than a second may have none. Years outside 100 to 9999 have none.
std::vector<double> DateTicks(const AxisRange& range, std::size_t most);

// What a numeric axis shows of a range: the labels of its table that lie in it. A view that holds
// fewer than three of the visible ones gets times of day between them, at most `most` labels.
std::vector<TickLabel> TableTicks(const XAxisLabels& table, const AxisRange& range,
                                  std::size_t most);

// The serial in a format of %d (day, two digits), %b (English month, three letters), %Y (year) and
// %X (the locale's time of day); "%%" is a percent sign, anything else stands for itself.
std::string FormatDateLabel(double serial, std::string_view format, const UserLocale& locale);

}  // namespace brask
