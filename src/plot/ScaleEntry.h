// The ranges that the user types for the three axes, and the view that they ask for.
#pragma once

#include <optional>
#include <string>

#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"

namespace brask {

// One axis: only a checked row is read.
struct ScaleRow {
    bool Checked = false;
    std::string From;  // UTF-8, as typed
    std::string To;
};

struct ScaleEntry {
    ScaleRow Dates;
    ScaleRow Gas;          // ppm
    ScaleRow Temperature;  // in the unit in force
};

// A view when every checked pair reads and is in order, else what is wrong with the first that does
// not.
struct ScaleReading {
    std::optional<ViewRecord> View;
    std::string Message;
};

// Axes whose rows are not checked keep what they show. Numbers are read with the user's decimal
// sign, dates in the given order.
ScaleReading ReadScaleEntry(const ScaleEntry& entry, const ViewRecord& shown,
                            const UserLocale& locale, LongDateOrder order, const Texts& texts);

// An end of a range as the boxes show it: a time stamp, or a number of six digits with the user's
// decimal sign.
std::string ScaleDateText(double serial);
std::string ScaleNumberText(double value, const UserLocale& locale);

}  // namespace brask
