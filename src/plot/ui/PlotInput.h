// Turns the mouse, the wheel and the keys on the plot into actions of the chart.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <optional>

#include "plot/ChartActions.h"
#include "plot/ui/DynaPlot.h"

namespace brask {

// What the plot asks the program for. Every work must be set.
struct PlotRequests {
    std::function<void()> ZoomIn;
    std::function<void()> Restore;  // a double click on an empty place
    // A double click on a reading, which is selected by then.
    std::function<void()> ReadingDoubleClicked;
    std::function<void(QPoint)> ContextMenu;  // at a place of the screen
    std::function<bool()> ScalesY;            // whether the wheel scales the Y axes too
};

class PlotInput final : public QObject {
    Q_OBJECT

  public:
    // Belongs to the plot and listens to its events from now on.
    PlotInput(DynaPlot& plot, const Chart& chart, ChartActions& actions, PlotRequests requests);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Drag { kNone, kPressed, kRectangle, kPan };

    // Each says whether the event was used.
    bool MousePress(const QMouseEvent& event);
    bool MouseMove(const QMouseEvent& event);
    bool MouseRelease(const QMouseEvent& event);
    bool DoubleClick(const QMouseEvent& event);
    bool Wheel(const QWheelEvent& event);
    bool KeyPress(const QKeyEvent& event);
    bool KeyRelease(const QKeyEvent& event);

    bool RectangleKey(const QKeyEvent& event);
    bool Escape();
    void EndRectangle(const QPointF& at, bool both);
    // A drag that is mostly along one axis zooms that axis alone.
    void SquareOff(const QPointF& to);
    void PanBy(const QPointF& pixels);
    void WheelZoom(const QWheelEvent& event);
    void SelectAt(const QPointF& at);
    // Ends whatever the mouse or the keys have begun, without effect.
    void Abandon();
    void ShowToolTip();
    void ShowCursorShape();

    DynaPlot& plot_;
    const Chart& chart_;
    ChartActions& actions_;
    PlotRequests requests_;
    QTimer* tmrTextToolTip;
    Drag drag_ = Drag::kNone;
    QPointF pressed_;  // where the button went down, then where the pan has come to
    bool spaceHeld_ = false;
    // The last step of a turning wheel.
    struct Burst {
        quint64 At = 0;   // its time stamp, milliseconds
        ViewRecord View;  // that it has left on the screen
    };
    std::optional<Burst> burst_;
};

}  // namespace brask
