// The view-changed refresh: what has to follow every change of the axes, in one place and always in
// the same order, whoever caused the change.
#pragma once

#include <array>
#include <functional>

namespace brask {

// In the order in which they run.
enum class RefreshStep {
    kScrollBar,
    kLimitCurve,  // its ends follow the X axis
    kMarkers,
    kReadout,  // readout and status bar
    kZoomOut,  // whether there is a zoom to go back from
    kDraw,
};

class ViewRefresh {
  public:
    // One piece of work a step; a step that nobody has hooked into is left out. What the works use
    // must outlive the last Run.
    void Hook(RefreshStep step, std::function<void()> work) {
        steps_[static_cast<std::size_t>(step)] = std::move(work);
    }
    void Run() const {
        for (const auto& step : steps_) {
            if (step) step();
        }
    }

  private:
    std::array<std::function<void()>, 6> steps_;
};

}  // namespace brask
