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

    // The column of an X value, -1 or Count for what lies beside the grid. The value must be
    // finite.
    int ColumnOf(double x) const;
    // False for the two outer columns, which have no width of their own.
    bool Inside(int column) const { return column >= 0 && column < Count; }
};

// Readings First to Last of the curve, all in one column. Neither end has a value that is not
// finite; between them there may be such readings, which Y leaves out.
struct ColumnRun {
    int Column = 0;
    std::size_t First = 0;
    std::size_t Last = 0;
    ValueRange Y;

    // Counts readings that are not finite too: a bound, good enough to tell dense from sparse.
    std::size_t Readings() const { return Last - First + 1; }
};

// Called for each run; false ends the reduction.
using RunSink = std::function<bool(const ColumnRun&)>;

// Neighbouring runs lie in different columns. Readings that are not finite belong to no run.
// Costs some blocks per column border that the curve crosses, whatever its length, as long as its
// times go forward. Curve and grid must stay as they are during the call.
void ForEachColumnRun(const Curve& curve, const ColumnGrid& grid, const RunSink& sink);

}  // namespace brask
