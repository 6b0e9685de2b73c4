#include "plot/ChartActions.h"

#include <algorithm>

#include "plot/AxisMoves.h"
#include "plot/CursorMoves.h"
#include "plot/PlotTexts.h"

namespace brask {
namespace {

using enum ChartAction;

// A keyboard zoom begins with the middle half of the view and changes by steps of this size.
constexpr double kRectangleStep = 0.02;
constexpr double kSmallestRectangle = 0.02;
constexpr double kFloatStep = 0.02;
constexpr double kFastFloatStep = 0.1;
// Far more zooms than anybody takes back one by one.
constexpr std::size_t kLongestHistory = 1000;

bool Between(ChartAction action, ChartAction first, ChartAction last) {
    return action >= first && action <= last;
}

ChartPlace Inside(ChartPlace place) {
    return {std::clamp(place.X, 0.0, 1.0), std::clamp(place.Y, 0.0, 1.0)};
}

// How far a rectangle side may move so that it stays within the axes.
double Allowed(double by, double a, double b) {
    return std::clamp(by, -std::min(a, b), 1 - std::max(a, b));
}

}  // namespace

void ChartActions::Execute(ChartAction action) {
    if (Between(action, kScrollLeft, kScrollDownFast) ||
        Between(action, kScrollUpBoth, kScrollDownBothFast)) {
        Scroll(action);
    } else if (Between(action, kCursorLeft, kCursorDownFast) || action == kLastPoint ||
               action == kMoveCursor) {
        MoveCursor(action);
    } else if (Between(action, kEnterMouseZoom, kMoveZoomRectangle) ||
               Between(action, kEnterKeyboardZoom, kLowerRectangle) ||
               Between(action, kExitZoomBoth, kExitKeyboardZoomBoth)) {
        DriveRectangle(action);
    } else if (action == kZoomOut || Between(action, kAutoscale, kOriginalScale)) {
        Rescale(action);
    } else {
        Toggle(action);
    }
    events_->ActionExecuted(action);
}

void ChartActions::Scroll(ChartAction action) {
    if (chart_.Curves().empty()) return;
    // normal and fast codes take turns, and a group has the codes of one direction first
    const bool both = action >= kScrollUpBoth;
    const int code =
        static_cast<int>(action) - static_cast<int>(both ? kScrollUpBoth : kScrollLeft);
    double step = code % 2 == 0 ? kScrollStep : kFastScrollStep;
    const int direction = code / 2;
    ViewRecord view = chart_.View();
    if (!both && direction < 2) {
        // curves that go left show later readings
        view.X = Shifted(view.X, direction == 0 ? step : -step);
    } else {
        // curves that go up show smaller values
        if ((both ? direction : direction - 2) == 0) step = -step;
        if (both || chart_.ActiveAxis == ChartAxis::kLeft) view.Y = Shifted(view.Y, step);
        if (both || chart_.ActiveAxis == ChartAxis::kRight) view.Y1 = Shifted(view.Y1, step);
    }
    Show(view);
}

void ChartActions::MoveCursor(ChartAction action) {
    const auto start = CursorStart(chart_);
    if (!start) return;
    const bool fast = action >= kCursorLeft && (static_cast<int>(action) % 2 == 0);
    if (!chart_.Cursor.Floating || action == kLastPoint || action == kMoveCursor) {
        MoveToReading(action, *start);
        return;
    }
    const double step = fast ? kFastFloatStep : kFloatStep;
    if (action <= kCursorLeftFast) {
        FloatCursor(-step, 0);
    } else if (action <= kCursorRightFast) {
        FloatCursor(step, 0);
    } else {
        FloatCursor(0, action <= kCursorUpFast ? -step : step);
    }
}

void ChartActions::MoveToReading(ChartAction action, ChartPoint from) {
    const Curve& curve = chart_.Curves()[from.Curve];
    const auto size = static_cast<std::ptrdiff_t>(curve.X.size());
    const bool wasSelected = chart_.Selected.has_value();
    const auto step = [&](std::ptrdiff_t readings) {
        // the first key only shows where the cursor is
        return wasSelected ? SteppedPoint(curve, from.Point, readings) : from.Point;
    };
    const auto extreme = [&](bool highest, const AxisRange& x) {
        return ExtremeWithin(curve, x, highest).value_or(from.Point);
    };
    std::size_t target = from.Point;
    switch (action) {
        case kLastPoint:
            target = SteppedPoint(curve, from.Point, size);
            break;
        case kMoveCursor:  // to the first reading
            target = SteppedPoint(curve, from.Point, -size);
            break;
        case kCursorLeft:
            target = step(-1);
            break;
        case kCursorRight:
            target = step(1);
            break;
        case kCursorLeftFast:
            target = step(-FastCursorStep(curve, chart_.X.Range()));
            break;
        case kCursorRightFast:
            target = step(FastCursorStep(curve, chart_.X.Range()));
            break;
        case kCursorUp:
        case kCursorDown:
            target = extreme(action == kCursorUp, chart_.X.Range());
            break;
        case kCursorUpFast:
        case kCursorDownFast:
            target = extreme(action == kCursorUpFast, chart_.Original.X);
            break;
        default:
            break;
    }
    SelectPoint({from.Curve, target});
}

void ChartActions::FloatCursor(double byX, double byY) {
    ChartPlace& place = *chart_.Cursor.Floating;
    place = Inside({place.X + byX, place.Y + byY});
    events_->ViewChanged();
}

void ChartActions::SelectPoint(ChartPoint point) {
    const Curve& curve = chart_.Curves()[point.Curve];
    chart_.Selected = point;
    ViewRecord view = chart_.View();
    AxisRange& values = curve.Axis == ChartAxis::kLeft ? view.Y : view.Y1;
    // the last reading stands at the edge: no move goes past the end of the data
    view.X = HeldWithin(Containing(view.X, curve.X[point.Point]), view.X, chart_.Original.X);
    values = Containing(values, curve.Y[point.Point]);
    if (view != chart_.View()) Show(view);
    pointSelected_(point);
}

void ChartActions::BeginRectangle(ChartPlace from) {
    if (chart_.Curves().empty()) return;
    chart_.Rectangle = ZoomRectangle{Inside(from), Inside(from), false};
}

void ChartActions::DragRectangle(ChartPlace to) {
    if (!chart_.Rectangle) return;
    chart_.Rectangle->To = Inside(to);
    events_->ViewChanged();
}

void ChartActions::DriveRectangle(ChartAction action) {
    switch (action) {
        case kEnterKeyboardZoom:
            if (!chart_.Curves().empty()) {
                chart_.Rectangle = ZoomRectangle{{0.25, 0.25}, {0.75, 0.75}, true};
            }
            break;
        case kExitZoom:
        case kExitKeyboardZoom:
            ApplyRectangle(false);
            break;
        case kExitZoomBoth:
        case kExitKeyboardZoomBoth:
            ApplyRectangle(true);
            break;
        case kCancelZoom:
        case kCancelKeyboardZoom:
            chart_.Rectangle.reset();
            break;
        case kNarrowRectangle:
        case kWidenRectangle:
            ResizeRectangle(action == kWidenRectangle ? kRectangleStep : -kRectangleStep, 0);
            break;
        case kHeightenRectangle:
        case kLowerRectangle:
            ResizeRectangle(0, action == kHeightenRectangle ? kRectangleStep : -kRectangleStep);
            break;
        default:  // the two that need a place
            return;
    }
    events_->ViewChanged();
}

void ChartActions::ShiftRectangle(double byX, double byY) {
    if (!chart_.Rectangle) return;
    ZoomRectangle& rectangle = *chart_.Rectangle;
    byX = Allowed(byX * kRectangleStep, rectangle.From.X, rectangle.To.X);
    byY = Allowed(byY * kRectangleStep, rectangle.From.Y, rectangle.To.Y);
    for (ChartPlace* corner : {&rectangle.From, &rectangle.To}) {
        *corner = {corner->X + byX, corner->Y + byY};
    }
    events_->ViewChanged();
    events_->ActionExecuted(kMoveZoomRectangle);
}

void ChartActions::ResizeRectangle(double byX, double byY) {
    if (!chart_.Rectangle) return;
    ZoomRectangle& rectangle = *chart_.Rectangle;
    const auto resized = [](double from, double to, double by, double& newFrom, double& newTo) {
        if (to - from + 2 * by < kSmallestRectangle) return;
        newFrom = std::max(0.0, from - by);
        newTo = std::min(1.0, to + by);
    };
    resized(rectangle.From.X, rectangle.To.X, byX, rectangle.From.X, rectangle.To.X);
    resized(rectangle.From.Y, rectangle.To.Y, byY, rectangle.From.Y, rectangle.To.Y);
}

void ChartActions::ApplyRectangle(bool both) {
    if (!chart_.Rectangle) return;
    const ZoomRectangle rectangle = *chart_.Rectangle;
    chart_.Rectangle.reset();
    ViewRecord view = chart_.View();
    view.X = PartOf(view.X, rectangle.From.X, rectangle.To.X);
    // rows count downwards, values upwards
    const auto values = [&](const AxisRange& range) {
        return PartOf(range, 1 - rectangle.From.Y, 1 - rectangle.To.Y);
    };
    if (both || chart_.ActiveAxis == ChartAxis::kLeft) view.Y = values(view.Y);
    if (both || chart_.ActiveAxis == ChartAxis::kRight) view.Y1 = values(view.Y1);
    if (!ZoomTo(view)) {
        events_->ErrorOccurred(kViewTooNarrow, texts_.Find(plot_texts::kViewTooNarrow));
    }
}

void ChartActions::ZoomAbout(ChartPlace place, double factor, const ZoomAxes& axes,
                             bool continues) {
    if (chart_.Curves().empty()) return;
    const ViewRecord shown = chart_.View();
    const auto scaled = [&](const AxisRange& range, double at, const AxisRange& original) {
        const double fixed = range.Minimum + at * SpanOf(range);
        return CutTo(ScaledAbout(range, fixed, factor), range, original);
    };
    ViewRecord view = shown;
    if (axes.X) view.X = scaled(shown.X, place.X, chart_.Original.X);
    if (axes.Y) view.Y = scaled(shown.Y, 1 - place.Y, chart_.Original.Y);
    if (axes.Y1) view.Y1 = scaled(shown.Y1, 1 - place.Y, chart_.Original.Y1);
    if (!continues) burstRemembered_ = false;
    if (!chart_.ShowView(view) || chart_.View() == shown) return;
    // the first step of a burst that moves anything: turning further than the original scale and
    // then back begins with steps that do not
    if (!burstRemembered_) Remember(shown);
    burstRemembered_ = true;
    events_->ViewChanged();
}

bool ChartActions::ZoomTo(const ViewRecord& view) {
    const ViewRecord shown = chart_.View();
    if (!chart_.ShowView(view)) return false;
    if (chart_.View() != shown) Remember(shown);
    events_->ViewChanged();
    return true;
}

void ChartActions::PanBy(double partOfWidth, double partOfHeight) {
    if (chart_.Curves().empty()) return;
    const ViewRecord shown = chart_.View();
    const auto moved = [](const AxisRange& range, double part, const AxisRange& original) {
        return HeldWithin(Shifted(range, part), range, original);
    };
    Show({moved(shown.X, partOfWidth, chart_.Original.X),
          moved(shown.Y, partOfHeight, chart_.Original.Y),
          moved(shown.Y1, partOfHeight, chart_.Original.Y1)});
}

void ChartActions::Rescale(ChartAction action) {
    if (chart_.Curves().empty()) return;
    if (action == kZoomOut) ZoomOut();
    if (action == kAutoscale) Autoscale();
    if (action == kOriginalScale) ZoomTo(chart_.Original);
}

void ChartActions::ZoomOut() {
    // a view that is shown already, since the program's own stack was used meanwhile, is no step
    while (!chart_.ZoomHistory.empty() && chart_.ZoomHistory.back() == chart_.View()) {
        chart_.ZoomHistory.pop_back();
    }
    if (chart_.ZoomHistory.empty()) {
        events_->ErrorOccurred(kNoFurtherZoom, texts_.Find(plot_texts::kNoZoomHistory));
        return;
    }
    const ViewRecord view = chart_.ZoomHistory.back();
    chart_.ZoomHistory.pop_back();
    Show(view);
}

void ChartActions::Autoscale() {
    ValueRange left;
    ValueRange right;
    for (const Curve& curve : chart_.Curves()) {
        for (const bool highest : {false, true}) {
            const auto found = ExtremeWithin(curve, chart_.X.Range(), highest);
            if (found) (curve.Axis == ChartAxis::kLeft ? left : right).Add(curve.Y[*found]);
        }
    }
    // a twentieth of the span above and below, so that no peak lies on the frame
    const auto around = [](const ValueRange& range, const AxisRange& shown) -> AxisRange {
        if (range.Empty()) return shown;
        const double margin = std::max((range.Maximum - range.Minimum) / 20, 0.5);
        return {range.Minimum - margin, range.Maximum + margin};
    };
    ViewRecord view = chart_.View();
    view.Y = around(left, view.Y);
    view.Y1 = around(right, view.Y1);
    ZoomTo(view);
}

void ChartActions::Toggle(ChartAction action) {
    ChartCursor& cursor = chart_.Cursor;
    switch (action) {
        case kToggleCursorMode:
            cursor.TakesArrows = !cursor.TakesArrows;
            break;
        case kToggleBitmap:
            chart_.Background.PictureShown = !chart_.Background.PictureShown;
            break;
        case kToggleCursors:
            cursor.Shown = !cursor.Shown;
            break;
        case kToggleLegend:
            chart_.LegendShown = !chart_.LegendShown;
            break;
        case kToggleFloating:
            cursor.Floating = cursor.Floating ? std::nullopt : std::optional(ChartPlace{});
            break;
        case kToggleAxis:
            chart_.ActiveAxis =
                chart_.ActiveAxis == ChartAxis::kLeft ? ChartAxis::kRight : ChartAxis::kLeft;
            break;
        case kCopyChart:
            copyChart_();
            return;
        case kOpenProperties:
            openProperties_();
            return;
        default:
            return;
    }
    events_->ViewChanged();
}

bool ChartActions::Show(const ViewRecord& view) {
    if (!chart_.ShowView(view)) return false;
    events_->ViewChanged();
    return true;
}

void ChartActions::Remember(const ViewRecord& left) {
    if (chart_.ZoomHistory.size() == kLongestHistory) {
        chart_.ZoomHistory.erase(chart_.ZoomHistory.begin());
    }
    chart_.ZoomHistory.push_back(left);
    events_->ViewLeft(left);
}

}  // namespace brask
