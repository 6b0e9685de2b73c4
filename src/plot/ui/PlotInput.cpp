#include "plot/ui/PlotInput.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QInputDevice>
#include <QToolTip>
#include <cmath>

#include "platform/qt/QtText.h"
#include "plot/PointSearch.h"
#include "plot/ui/PlotKeys.h"

namespace brask {
namespace {

constexpr int kRestMilliseconds = 600;
// Steps of a wheel that follow each other so fast are one zoom.
constexpr quint64 kBurstMilliseconds = 700;
constexpr double kWheelStep = 120;    // what the mouse reports for one notch
constexpr double kZoomPerStep = 0.8;  // the span that is left
constexpr double kHitRadius = 8;      // pixels around a reading that count as on it
constexpr double kThinRectangle = 8;  // pixels
constexpr double kEverywhere = 1e9;   // pixels

// A touch pad scrolls by pixels and knows when a gesture begins and ends; a wheel does not.
bool IsTouchPad(const QWheelEvent& event) {
    return event.phase() != Qt::NoScrollPhase ||
           (event.device() != nullptr &&
            event.device()->type() == QInputDevice::DeviceType::TouchPad);
}

}  // namespace

PlotInput::PlotInput(DynaPlot& plot, const Chart& chart, ChartActions& actions,
                     PlotRequests requests)
    : QObject(&plot),
      plot_(plot),
      chart_(chart),
      actions_(actions),
      requests_(std::move(requests)),
      tmrTextToolTip(new QTimer(this)) {
    tmrTextToolTip->setObjectName(QStringLiteral("tmrTextToolTip"));
    tmrTextToolTip->setSingleShot(true);
    tmrTextToolTip->setInterval(kRestMilliseconds);
    connect(tmrTextToolTip, &QTimer::timeout, this, [this] { ShowToolTip(); });
    plot_.setMouseTracking(true);
    plot_.installEventFilter(this);
}

bool PlotInput::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            return MousePress(static_cast<const QMouseEvent&>(*event));
        case QEvent::MouseMove:
            return MouseMove(static_cast<const QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return MouseRelease(static_cast<const QMouseEvent&>(*event));
        case QEvent::MouseButtonDblClick:
            return DoubleClick(static_cast<const QMouseEvent&>(*event));
        case QEvent::Wheel:
            return Wheel(static_cast<const QWheelEvent&>(*event));
        case QEvent::KeyPress:
            return KeyPress(static_cast<const QKeyEvent&>(*event));
        case QEvent::KeyRelease:
            return KeyRelease(static_cast<const QKeyEvent&>(*event));
        case QEvent::ContextMenu:
            requests_.ContextMenu(static_cast<const QContextMenuEvent*>(event)->globalPos());
            return true;
        case QEvent::Leave:
            tmrTextToolTip->stop();
            return false;
        case QEvent::FocusOut:
        case QEvent::Hide:
            Abandon();
            return false;
        default:
            return false;
    }
}

bool PlotInput::MousePress(const QMouseEvent& event) {
    plot_.setFocus(Qt::MouseFocusReason);
    tmrTextToolTip->stop();
    const bool left = event.button() == Qt::LeftButton;
    if (drag_ != Drag::kNone || (!left && event.button() != Qt::MiddleButton)) return true;
    drag_ = left && !spaceHeld_ ? Drag::kPressed : Drag::kPan;
    pressed_ = event.position();
    ShowCursorShape();
    return true;
}

bool PlotInput::MouseMove(const QMouseEvent& event) {
    if (drag_ == Drag::kNone) {
        tmrTextToolTip->start();
        return true;
    }
    if (drag_ == Drag::kPan) {
        PanBy(event.position() - pressed_);
        pressed_ = event.position();
        return true;
    }
    if (drag_ == Drag::kPressed) {
        const QPointF moved = event.position() - pressed_;
        // a hand that trembles during a click draws no rectangle
        if (moved.manhattanLength() < QApplication::startDragDistance()) return true;
        drag_ = Drag::kRectangle;
        actions_.Execute(ChartAction::kEnterMouseZoom);
        actions_.BeginRectangle(plot_.PlaceAt(pressed_));
    }
    actions_.DragRectangle(plot_.PlaceAt(event.position()));
    return true;
}

bool PlotInput::MouseRelease(const QMouseEvent& event) {
    const Drag drag = drag_;
    const bool ends = event.button() == Qt::LeftButton || drag == Drag::kPan;
    if (!ends) return true;
    drag_ = Drag::kNone;
    ShowCursorShape();
    if (drag == Drag::kPressed) SelectAt(event.position());
    if (drag == Drag::kRectangle) {
        EndRectangle(event.position(), event.modifiers().testFlag(Qt::ShiftModifier));
    }
    return true;
}

void PlotInput::EndRectangle(const QPointF& at, bool both) {
    const QPointF size = at - pressed_;
    const bool thin = std::abs(size.x()) < kThinRectangle && std::abs(size.y()) < kThinRectangle;
    if (thin) {
        actions_.Execute(ChartAction::kCancelZoom);
        return;
    }
    SquareOff(at);
    actions_.Execute(both ? ChartAction::kExitZoomBoth : ChartAction::kExitZoom);
}

void PlotInput::SquareOff(const QPointF& to) {
    ChartPlace from = plot_.PlaceAt(pressed_);
    ChartPlace end = plot_.PlaceAt(to);
    if (std::abs(to.x() - pressed_.x()) < kThinRectangle) {
        from.X = 0;
        end.X = 1;
    }
    if (std::abs(to.y() - pressed_.y()) < kThinRectangle) {
        from.Y = 0;
        end.Y = 1;
    }
    actions_.BeginRectangle(from);
    actions_.DragRectangle(end);
}

bool PlotInput::DoubleClick(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return true;
    // the release that follows must not select
    drag_ = Drag::kNone;
    const PixelPoint at{event.position().x(), event.position().y()};
    const ChartAxis axis = chart_.ActiveAxis;
    const auto hit = NearestPointOnAxis(chart_, axis, plot_.ViewOf(axis), at, kHitRadius);
    if (!hit) {
        requests_.Restore();
        return true;
    }
    actions_.SelectPoint(*hit);
    requests_.ReadingDoubleClicked();
    return true;
}

void PlotInput::SelectAt(const QPointF& at) {
    const ChartAxis axis = chart_.ActiveAxis;
    const auto nearest =
        NearestPointOnAxis(chart_, axis, plot_.ViewOf(axis), {at.x(), at.y()}, kEverywhere);
    if (nearest) actions_.SelectPoint(*nearest);
}

bool PlotInput::Wheel(const QWheelEvent& event) {
    if (IsTouchPad(event) && !event.modifiers().testFlag(Qt::ControlModifier)) {
        const bool pixels = !event.pixelDelta().isNull();
        PanBy(pixels ? QPointF(event.pixelDelta()) : QPointF(event.angleDelta()) / 2);
        return true;
    }
    WheelZoom(event);
    return true;
}

void PlotInput::WheelZoom(const QWheelEvent& event) {
    // with Alt a wheel turns sideways
    const QPoint delta = event.angleDelta();
    const double steps = (delta.y() != 0 ? delta.y() : delta.x()) / kWheelStep;
    if (event.modifiers().testFlag(Qt::ShiftModifier)) {
        const double width = plot_.ViewOf(ChartAxis::kLeft).Rect().Width;
        PanBy({steps * width / 10, 0});
        return;
    }
    const ChartPlace place = plot_.PlaceAt(event.position());
    ChartActions::ZoomAxes axes{true, requests_.ScalesY(), requests_.ScalesY()};
    // on an axis the wheel scales that axis alone
    if (place.Y > 1) axes = {true, false, false};
    if (place.X < 0) axes = {false, true, false};
    if (place.X > 1) axes = {false, false, true};
    const quint64 now = event.timestamp();
    const ViewRecord shown = chart_.View();
    // any other move in between, such as taking the zoom back, ends a burst
    const bool continues = burst_ && now - burst_->At < kBurstMilliseconds && burst_->View == shown;
    actions_.ZoomAbout(place, std::pow(kZoomPerStep, steps), axes, continues);
    burst_.reset();
    // a step without effect has left nothing behind that the next one could go on from
    if (continues || chart_.View() != shown) burst_ = Burst{now, chart_.View()};
}

void PlotInput::PanBy(const QPointF& pixels) {
    const PixelRect rect = plot_.ViewOf(ChartAxis::kLeft).Rect();
    // the curves go with the hand, so the view goes against it
    actions_.PanBy(-pixels.x() / rect.Width, pixels.y() / rect.Height);
}

bool PlotInput::KeyPress(const QKeyEvent& event) {
    const int key = event.key();
    if (chart_.Rectangle && chart_.Rectangle->ByKeyboard) return RectangleKey(event);
    if (key == Qt::Key_Escape) return Escape();
    if (key == Qt::Key_Space) {
        spaceHeld_ = true;
        ShowCursorShape();
        return true;
    }
    // on many keyboards the plus is the shifted equals sign
    const auto modifiers = event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if ((key == Qt::Key_Plus || key == Qt::Key_Equal) &&
        (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier)) {
        requests_.ZoomIn();
        return true;
    }
    const auto action = ActionOfKey(event, chart_.Cursor.TakesArrows);
    if (!action) return false;
    actions_.Execute(*action);
    return true;
}

bool PlotInput::RectangleKey(const QKeyEvent& event) {
    if (const auto action = RectangleActionOfKey(event)) {
        actions_.Execute(*action);
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Left:
            actions_.ShiftRectangle(-1, 0);
            return true;
        case Qt::Key_Right:
            actions_.ShiftRectangle(1, 0);
            return true;
        case Qt::Key_Up:
            actions_.ShiftRectangle(0, -1);
            return true;
        case Qt::Key_Down:
            actions_.ShiftRectangle(0, 1);
            return true;
        default:
            return false;
    }
}

bool PlotInput::Escape() {
    // a press that has drawn nothing yet, or a pan, only ends
    if (drag_ != Drag::kNone && !chart_.Rectangle) {
        Abandon();
        return true;
    }
    if (chart_.Rectangle) {
        drag_ = Drag::kNone;
        actions_.Execute(ChartAction::kCancelZoom);
        return true;
    }
    // without a zoom the key is for whoever else may want it
    if (chart_.ZoomHistory.empty()) return false;
    actions_.Execute(ChartAction::kZoomOut);
    return true;
}

bool PlotInput::KeyRelease(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Space || event.isAutoRepeat()) return false;
    spaceHeld_ = false;
    ShowCursorShape();
    return true;
}

void PlotInput::Abandon() {
    tmrTextToolTip->stop();
    drag_ = Drag::kNone;
    spaceHeld_ = false;
    ShowCursorShape();
    if (chart_.Rectangle) actions_.Execute(ChartAction::kCancelZoom);
}

void PlotInput::ShowToolTip() {
    if (!chart_.Selected || !plot_.underMouse()) return;
    QToolTip::showText(QCursor::pos(), AsToolTip(ToQt(chart_.Readout)), &plot_);
}

void PlotInput::ShowCursorShape() {
    if (drag_ == Drag::kPan) {
        plot_.setCursor(Qt::ClosedHandCursor);
    } else if (spaceHeld_) {
        plot_.setCursor(Qt::OpenHandCursor);
    } else {
        plot_.unsetCursor();
    }
}

}  // namespace brask
