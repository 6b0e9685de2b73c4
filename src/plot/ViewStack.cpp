#include "plot/ViewStack.h"

#include <algorithm>

namespace brask {
namespace {

// The count has always been a 16-bit number. Beyond it the oldest views are forgotten.
constexpr std::size_t kMostViews = 32767;

// A range from before a change of the unit or of the data may have nothing to do with what the plot
// shows now; each end that lies outside gives way to the original one.
AxisRange Clamped(const AxisRange& range, const AxisRange& original) {
    AxisRange clamped = range;
    if (range.Minimum < original.Minimum || range.Minimum > original.Maximum) {
        clamped.Minimum = original.Minimum;
    }
    if (range.Maximum > original.Maximum || range.Maximum < original.Minimum) {
        clamped.Maximum = original.Maximum;
    }
    return clamped.Maximum < clamped.Minimum ? original : clamped;
}

}  // namespace

void ViewStack::Push(const ViewRecord& view) {
    if (!views_.empty() && views_.back() == view) return;
    if (views_.size() == kMostViews) views_.erase(views_.begin());
    views_.push_back(view);
}

std::optional<ViewRecord> ViewStack::Pop() {
    DropShown();
    if (views_.empty()) return std::nullopt;
    ViewRecord view = views_.back();
    views_.pop_back();
    view.Y = Clamped(view.Y, chart_.Original.Y);
    view.Y1 = Clamped(view.Y1, chart_.Original.Y1);
    return view;
}

void ViewStack::DropShown() {
    if (TopIsShown()) views_.pop_back();
}

bool ViewStack::Holds(const ViewRecord& view) const {
    return std::find(views_.begin(), views_.end(), view) != views_.end();
}

bool ViewStack::CanPop() const { return views_.size() > (TopIsShown() ? 1U : 0U); }

}  // namespace brask
