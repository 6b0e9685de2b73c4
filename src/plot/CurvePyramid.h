// Minima and maxima of a curve per block of readings, in levels, so that a drawing of any stretch
// costs what the screen shows and not what the file holds, and still shows every spike.
#pragma once

#include <cmath>
#include <cstddef>
#include <limits>
#include <span>
#include <vector>

namespace brask {

// The least and the greatest finite value of a run; Minimum above Maximum when there is none.
struct ValueRange {
    double Minimum = std::numeric_limits<double>::infinity();
    double Maximum = -std::numeric_limits<double>::infinity();

    // True also of a block of readings that are all infinite or not a number.
    bool Empty() const { return Minimum > Maximum; }
    void Add(const ValueRange& other) {
        if (other.Minimum < Minimum) Minimum = other.Minimum;
        if (other.Maximum > Maximum) Maximum = other.Maximum;
    }
    void Add(double value) {  // ignored unless finite
        if (std::isfinite(value)) Add(ValueRange{value, value});
    }
};

class CurvePyramid {
  public:
    // Readings in a block of the lowest level, and blocks of one level in a block of the next.
    // With these the levels take less than a third of a byte per value, and a descent looks at no
    // more than 64 readings at each column border.
    static constexpr std::size_t kBlock = 64;
    static constexpr std::size_t kFanOut = 8;

    // Of an empty curve.
    CurvePyramid() = default;
    // One pass over the values, which are not kept: it holds for as long as they stay unchanged.
    explicit CurvePyramid(std::span<const double> values);

    // Number of levels; 0 for an empty curve. Level 0 is the finest, the last is one block.
    // Two pyramids over arrays of equal length have the same levels and blocks, so X and Y of a
    // curve can be walked side by side.
    std::size_t Levels() const { return levels_; }
    // The blocks of one level in order; block i covers values i * Span(level) and on.
    std::span<const ValueRange> Level(std::size_t level) const;
    // Values that a block of this level covers (the last one perhaps fewer).
    static std::size_t Span(std::size_t level);
    // Over all values.
    ValueRange Whole() const;
    // Whether no value is infinite or not a number: then nobody needs to look at single ones to
    // find out, which far apart in memory is what takes time.
    bool AllFinite() const { return allFinite_; }
    // Memory that the levels take.
    std::size_t Bytes() const { return blocks_.capacity() * sizeof(ValueRange); }

  private:
    // One block of memory for all levels, the finest first: a plot of overlapping days has
    // hundreds of small pyramids.
    std::vector<ValueRange> blocks_;
    std::size_t finest_ = 0;  // blocks of level 0
    std::size_t levels_ = 0;
    bool allFinite_ = true;
};

}  // namespace brask
