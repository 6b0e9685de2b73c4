// The program's own zoom stack: whole views, kept across rebuilds of the plot.
#pragma once

#include <optional>
#include <vector>

#include "plot/Chart.h"

namespace brask {

class ViewStack {
  public:
    // The chart tells what is shown and what the original scale is; it must outlive the stack.
    explicit ViewStack(const Chart& chart) : chart_(chart) {}

    // Puts a view on top, unless exactly this view is there already.
    void Push(const ViewRecord& view);
    void PushCurrent() { Push(chart_.View()); }
    // The view to go back to, taken off; nothing when there is none. A record of the view that is
    // shown is dropped for good on the way, even when nothing lies below it. The Y ranges come back
    // within the original scale, the X range as it was.
    std::optional<ViewRecord> Pop();
    // Drops a record of the view that is shown.
    void DropShown();
    void Clear() { views_.clear(); }
    bool Holds(const ViewRecord& view) const;
    // Whether there is a view to go back to: one that is shown already does not count.
    bool CanPop() const;
    std::size_t Count() const { return views_.size(); }

  private:
    bool TopIsShown() const { return !views_.empty() && views_.back() == chart_.View(); }

    const Chart& chart_;
    std::vector<ViewRecord> views_;
};

}  // namespace brask
