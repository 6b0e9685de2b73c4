// What the program adds to the chart's own moves: the zoom stack that survives rebuilds, zooming in
// about the selected point, restoring the scale, moving the view by menu, and the answer to the
// chart's errors.
#pragma once

#include <string>

#include "data/Settings.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"
#include "plot/ChartActions.h"
#include "plot/ViewRefresh.h"
#include "plot/ViewStack.h"

namespace brask {

// The chart's listener for its view. Every change of the axes ends in Refresh().
class PlotNavigation final : private ChartViewEvents {
  public:
    // What it works with; all must outlive it.
    struct Parts {
        Chart& Plot;
        ChartActions& Actions;
        const Settings& Options;
        UserInterface& User;
        const Texts& Words;
    };
    explicit PlotNavigation(const Parts& parts);

    // Halves the visible X span around the selected point, or around the middle of the view when
    // none is selected; the Y spans too, around their middles, when that option is set.
    void ZoomIn();
    // Back to the view before the last zoom; without one the axes stay.
    void ZoomOut();
    bool CanZoomOut() const { return stack_.CanPop(); }
    // The whole plot again; forgets all zooms.
    void Restore();
    // A view that was set by hand, as a zoom that can be taken back; false when it cannot be shown.
    bool ShowView(const ViewRecord& view) { return parts_.Actions.ZoomTo(view); }
    bool ShowXRange(const AxisRange& range);
    // The visible X range moved so that it begins there, span kept: no zoom.
    void ScrollTo(double minimum);
    // Moves the view, spans kept, so that the selected point lies in the middle of it.
    void CenterSelected();
    void SwitchActiveAxis() { parts_.Actions.Execute(ChartAction::kToggleAxis); }

    // Around every rebuild. Before: once data-point marking was switched, the view is put on the
    // stack. After: what hangs on the view follows.
    void BeforeRebuild();
    void AfterRebuild() { Refresh(); }
    // From now on rebuilds keep the view on the stack.
    void KeepViews() { keepViews_ = true; }
    // Another file: nothing of the old one's views is left.
    void Forget();

    // The steps that follow a change of the view; others hook into it.
    ViewRefresh& Steps() { return refresh_; }
    void Refresh() { refresh_.Run(); }

  private:
    void ViewLeft(const ViewRecord& view) override { stack_.Push(view); }
    void ViewChanged() override { Refresh(); }
    void ActionExecuted(ChartAction action) override;
    void ErrorOccurred(int number, const std::string& description) override;
    // Shows the view below in the stack, if there is one.
    void GoBack();

    Parts parts_;
    ViewStack stack_;
    ViewRefresh refresh_;
    bool keepViews_ = false;
};

}  // namespace brask
