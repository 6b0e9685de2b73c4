#include "plot/ColumnReduction.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace brask {
namespace {

// Joins what falls into one column until the column changes.
class RunCollector {
  public:
    explicit RunCollector(const RunSink& sink) : sink_(sink) {}

    bool Add(const ColumnRun& part) {
        if (pending_ && pending_->Column == part.Column) {
            pending_->Last = part.Last;
            pending_->Y.Add(part.Y);
            return true;
        }
        if (!Flush()) return false;
        pending_ = part;
        return true;
    }
    bool Flush() { return !pending_ || sink_(*pending_); }

  private:
    const RunSink& sink_;
    std::optional<ColumnRun> pending_;
};

// Goes down the pyramids from the one block at the top, first child first, so that runs come out in
// the order of the file. A block that lies in one column is taken whole; only those across a border
// are opened. Nothing relies on times that go forward: a file whose clock was set back is merely
// opened in more places.
class Descent {
  public:
    Descent(const Curve& curve, const ColumnGrid& grid, RunCollector& runs)
        : curve_(curve),
          grid_(grid),
          runs_(runs),
          allFinite_(curve.PyramidX->AllFinite() && curve.PyramidY->AllFinite()) {
        for (std::size_t level = 0; level < curve.PyramidX->Levels(); ++level) {
            xLevels_.push_back(curve.PyramidX->Level(level));
            yLevels_.push_back(curve.PyramidY->Level(level));
        }
    }

    bool Run() { return xLevels_.empty() || Block(xLevels_.size() - 1, 0); }

  private:
    // One block of one level; false once the sink wants no more.
    bool Block(std::size_t level, std::size_t block) {
        const std::size_t span = CurvePyramid::Span(level);
        const std::size_t first = block * span;
        const std::size_t last = std::min(first + span, curve_.X.size()) - 1;
        const ValueRange& x = xLevels_[level][block];
        const ValueRange& y = yLevels_[level][block];
        // no reading here can be drawn
        if (x.Empty() || y.Empty()) return true;
        const int column = grid_.ColumnOf(x.Minimum);
        // the ends of a run are drawn as points and must have values; blocks with bad ends are
        // rare, and going down finds better ones
        if (column == grid_.ColumnOf(x.Maximum) && Finite(first) && Finite(last)) {
            return runs_.Add({column, first, last, y});
        }
        return level == 0 ? Readings(first, last) : Children(level - 1, block);
    }

    bool Children(std::size_t level, std::size_t parent) {
        const std::size_t begin = parent * CurvePyramid::kFanOut;
        const std::size_t end = std::min(begin + CurvePyramid::kFanOut, xLevels_[level].size());
        for (std::size_t block = begin; block < end; ++block) {
            if (!Block(level, block)) return false;
        }
        return true;
    }

    bool Readings(std::size_t first, std::size_t last) {
        for (std::size_t i = first; i <= last; ++i) {
            if (!Finite(i)) continue;
            const double y = curve_.Y[i];
            if (!runs_.Add({grid_.ColumnOf(curve_.X[i]), i, i, {y, y}})) return false;
        }
        return true;
    }

    bool Finite(std::size_t i) const {
        return allFinite_ || (std::isfinite(curve_.X[i]) && std::isfinite(curve_.Y[i]));
    }

    const Curve& curve_;
    const ColumnGrid& grid_;
    RunCollector& runs_;
    bool allFinite_;
    std::vector<std::span<const ValueRange>> xLevels_;
    std::vector<std::span<const ValueRange>> yLevels_;
};

}  // namespace

int ColumnGrid::ColumnOf(double x) const {
    const double offset = View.PixelX(x) - View.Rect().Left;
    // a reading at the very end of the range is drawn on the edge and belongs to the view
    constexpr double kEdge = 0.5;
    if (offset < -kEdge) return -1;
    if (offset > Count * ColumnWidth + kEdge) return Count;
    return std::clamp(static_cast<int>(offset / ColumnWidth), 0, Count - 1);
}

void ForEachColumnRun(const Curve& curve, const ColumnGrid& grid, const RunSink& sink) {
    RunCollector runs(sink);
    if (Descent(curve, grid, runs).Run()) runs.Flush();
}

}  // namespace brask
