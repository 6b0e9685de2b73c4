// What can be done to the chart by mouse, keys and menus: the component's numbered actions, and the
// moves that need a place or an amount. All of it works in values and fractions, without a window.
#pragma once

#include <functional>
#include <string>

#include "plot/Chart.h"
#include "plot/ChartAction.h"

namespace brask {

inline constexpr int kNoFurtherZoom = 11;
inline constexpr int kViewTooNarrow = 12;

// Told what happens to the view.
class ChartViewEvents {
  public:
    virtual ~ChartViewEvents() = default;

    // A zoom is about to leave this view.
    virtual void ViewLeft(const ViewRecord& view) = 0;
    // The axes or what is drawn within them have changed.
    virtual void ViewChanged() = 0;
    // An action has had its effect, or found nothing to do.
    virtual void ActionExecuted(ChartAction action) = 0;
    // What the component could not do, by number and in words.
    virtual void ErrorOccurred(int number, const std::string& description) = 0;
};

class ChartActions {
  public:
    // Both must outlive the object.
    ChartActions(Chart& chart, const Texts& texts) : chart_(chart), texts_(texts) {}

    // The listeners are set once, before anything is executed, and must outlive the last action.
    void SetEvents(ChartViewEvents& events) { events_ = &events; }
    // A point was selected, perhaps the one that was selected before.
    void OnPointSelected(std::function<void(ChartPoint)> work) { pointSelected_ = std::move(work); }
    // Copying the chart and opening its properties are done by the window.
    void OnCopyChart(std::function<void()> work) { copyChart_ = std::move(work); }
    void OnOpenProperties(std::function<void()> work) { openProperties_ = std::move(work); }

    // Runs a numbered action. Without curves nothing moves and nothing is selected.
    void Execute(ChartAction action);

    // The zoom rectangle drawn by mouse: Execute(kEnterMouseZoom), these two, and kExitZoom (X and
    // the active axis), kExitZoomBoth or kCancelZoom. Places beside the axes are moved onto them.
    void BeginRectangle(ChartPlace from);
    void DragRectangle(ChartPlace to);
    // Moves the keyboard's rectangle by so many steps to the right and downwards, within the axes.
    void ShiftRectangle(double byX, double byY);

    struct ZoomAxes {
        bool X = true;
        bool Y = false;
        bool Y1 = false;
    };
    // Scales these axes about a place; a factor below 1 zooms in. Zooming out ends at the original
    // scale, zooming in where numbers end, both without an error. `continues` makes this step one
    // zoom with the step before, so that turning a wheel can be undone at once.
    void ZoomAbout(ChartPlace place, double factor, const ZoomAxes& axes, bool continues);
    // Shows a view as a zoom that can be undone; false, with nothing changed, when it cannot be
    // shown.
    bool ZoomTo(const ViewRecord& view);
    // Moves the view by parts of its spans, positive to the right and upwards, but not further away
    // from the original scale than it is.
    void PanBy(double partOfWidth, double partOfHeight);

    // Selects a point that exists and tells so. Moves the view to it when it is out of sight.
    void SelectPoint(ChartPoint point);

  private:
    // One for each group of actions.
    void Scroll(ChartAction action);
    void MoveCursor(ChartAction action);
    void DriveRectangle(ChartAction action);
    void Toggle(ChartAction action);
    void Rescale(ChartAction action);

    void ZoomOut();
    void Autoscale();
    void ApplyRectangle(bool both);
    void ResizeRectangle(double byX, double byY);
    void FloatCursor(double byX, double byY);
    void MoveToReading(ChartAction action, ChartPoint from);
    // Without a place in the histories.
    bool Show(const ViewRecord& view);
    void Remember(const ViewRecord& left);

    Chart& chart_;
    const Texts& texts_;
    ChartViewEvents* events_ = nullptr;
    bool burstRemembered_ = false;  // whether the zoom that goes on can be undone already
    std::function<void(ChartPoint)> pointSelected_ = [](ChartPoint) {};
    std::function<void()> copyChart_ = [] {};
    std::function<void()> openProperties_ = [] {};
};

}  // namespace brask
