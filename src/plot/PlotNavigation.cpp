#include "plot/PlotNavigation.h"

#include "data/DataTexts.h"
#include "plot/AxisMoves.h"
#include "plot/PlotTexts.h"

namespace brask {
namespace {

// A quarter of the span on each side of a middle: half of what is shown.
AxisRange Halved(const AxisRange& range, double middle) {
    const double quarter = SpanOf(range) / 4;
    return {middle - quarter, middle + quarter};
}

}  // namespace

PlotNavigation::PlotNavigation(const Parts& parts) : parts_(parts), stack_(parts.Plot) {
    parts_.Actions.SetEvents(*this);
}

void PlotNavigation::ZoomIn() {
    const Chart& plot = parts_.Plot;
    if (plot.Curves().empty()) return;
    ViewRecord view = plot.View();
    const auto selected = plot.Selection();
    view.X = Halved(view.X, selected ? selected->X : MiddleOf(view.X));
    // read at every zoom, so that the option counts from the moment it is set
    if (parts_.Options.IsYes("ScaleYAxisOnZoom")) {
        view.Y = Halved(view.Y, MiddleOf(view.Y));
        view.Y1 = Halved(view.Y1, MiddleOf(view.Y1));
    }
    // too narrow to be shown: the view stays, as it does when a wheel is turned on and on
    static_cast<void>(parts_.Actions.ZoomTo(view));
}

void PlotNavigation::ZoomOut() {
    GoBack();
    Refresh();
}

void PlotNavigation::GoBack() {
    const auto view = stack_.Pop();
    // the chart's own history would lead forward again to the zooms that are taken back here
    auto& history = parts_.Plot.ZoomHistory;
    while (!history.empty() && !stack_.Holds(history.back())) history.pop_back();
    // clamped ends may be equal; that is no reason to keep X from going back
    if (view) parts_.Plot.SetView(*view);
}

void PlotNavigation::Restore() {
    stack_.Clear();
    parts_.Plot.ZoomHistory.clear();
    static_cast<void>(parts_.Plot.ShowView(parts_.Plot.Original));
    Refresh();
}

bool PlotNavigation::ShowXRange(const AxisRange& range) {
    ViewRecord view = parts_.Plot.View();
    view.X = range;
    return ShowView(view);
}

void PlotNavigation::ScrollTo(double minimum) {
    ViewRecord view = parts_.Plot.View();
    view.X = {minimum, minimum + SpanOf(view.X)};
    if (parts_.Plot.ShowView(view)) Refresh();
}

void PlotNavigation::CenterSelected() {
    const Chart& plot = parts_.Plot;
    const auto selected = plot.Selection();
    if (!selected) return;
    ViewRecord view = plot.View();
    view.X = CenteredOn(view.X, selected->X);
    const bool left = plot.Curves()[plot.Selected->Curve].Axis == ChartAxis::kLeft;
    AxisRange& values = left ? view.Y : view.Y1;
    values = CenteredOn(values, selected->Y);
    if (parts_.Plot.ShowView(view)) Refresh();
}

void PlotNavigation::BeforeRebuild() {
    if (keepViews_ && !parts_.Plot.Curves().empty()) stack_.PushCurrent();
}

void PlotNavigation::Forget() {
    stack_.Clear();
    Refresh();
}

void PlotNavigation::ActionExecuted(ChartAction action) {
    // the chart went back by itself; a second way back to the same view would lead forward again
    if (action == ChartAction::kZoomOut) stack_.DropShown();
    if (action < ChartAction::kScrollLeft || action > ChartAction::kScrollRightFast) return;
    const AxisRange shown = parts_.Plot.X.Range();
    const double end = parts_.Plot.Original.X.Maximum;
    if (shown.Maximum <= end) return;
    // The view never scrolls past the end of the data: its end is set back, its start stays, until
    // hardly anything would be left of it.
    AxisRange held{shown.Minimum, end};
    if (!IsShowable(held)) held = {end - SpanOf(shown), end};
    parts_.Plot.X.SetRange(held.Minimum, held.Maximum);
    Refresh();
}

void PlotNavigation::ErrorOccurred(int number, const std::string& description) {
    const std::string title = parts_.Words.Find(data_texts::kProgramTitle);
    if (number != kNoFurtherZoom) {
        parts_.User.ShowMessage({title, parts_.Words.Fill(plot_texts::kPlottingError,
                                                          {description, std::to_string(number)})});
        return;
    }
    // the chart's own history ends at a rebuild; the stack goes further back
    GoBack();
    Refresh();
    parts_.User.ShowMessage({title, parts_.Words.Find(plot_texts::kNoFurtherZoomOut)});
}

}  // namespace brask
