// Reduces a curve to what its pixel columns show: runs of readings that share a column, in the
// order of the file, found in the curve's pyramids without visiting every reading.
#pragma once

#include <cstddef>
#include <functional>

#include "plot/Chart.h"
#include "plot/PixelView.h"

namespace brask {

// Columns of equal width side by side, the first one 0. What lies left of them is one further
// column, -1, and what lies right of them is column Count.
struct ColumnGrid {
    const PixelView& View;
    int Count = 1;
    double ColumnWidth = 1;  // pixels

    int ColumnOf(double x) const;
    bool Inside(int column) const { return column >= 0 && column < Count; }
};

// Readings First to Last of the curve, all in one column. Neither end has a value that is not
// finite; between them there may be such readings, which Y leaves out.
struct ColumnRun {
    int Column = 0;
    std::size_t First = 0;
    std::size_t Last = 0;
    ValueRange Y;

    std::size_t Readings() const { return Last - First + 1; }
};

// Called for each run; false ends the reduction.
using RunSink = std::function<bool(const ColumnRun&)>;

// Neighbouring runs lie in different columns. Readings that are not finite belong to no run.
void ForEachColumnRun(const Curve& curve, const ColumnGrid& grid, const RunSink& sink);

}  // namespace brask
