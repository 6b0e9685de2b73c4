// The main window with a small file in its plot, and a user's hands on mouse, wheel and keys.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <string>

#include "WindowFixture.h"
#include "plot/AxisMoves.h"

namespace brask {

class PlotWindow : public WindowFixture {
  protected:
    // 24 readings, one every three hours from a Wednesday's midnight on: reading i has i ppm and
    // 40 - i degrees.
    PlotWindow() {
        Disk.Contents["/data/days.csv"] = "GAS: CO\r\n";
        for (int i = 0; i < 24; ++i) {
            char line[64];
            std::snprintf(line, sizeof line, "JAN-%02d-2003 %02d:00:00,  %d.0,  %d.0\r\n",
                          1 + i / 8, i % 8 * 3, i, 40 - i);
            Disk.Contents["/data/days.csv"] += line;
        }
    }
    void SetUp() override { ShowPlot(); }
    // Again, when other settings are to hold from the start on.
    void ShowPlot() {
        Start();
        Open("/data/days.csv");
        QCoreApplication::processEvents();
    }
    DynaPlot& Drawn() { return *Find<DynaPlot>("DynaPlot1"); }
    std::string Text(const char* label) { return FromQt(Find<QLabel>(label)->text()); }
    QAbstractButton* Button(const char* name) { return Find<QAbstractButton>(name); }
    QAction* Tool(const char* key) { return Find<Toolbar>("Toolbar1")->Button(key); }
    // As a user would: what stood there before is gone.
    void Type(const char* box, const char* text) {
        auto* edit = Find<QLineEdit>(box);
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromLatin1(text));
    }

    // What the axes show where that differs from what they showed at first, in hundredths of it:
    // "from..to" behind X, Y or T for the temperature.
    std::string Shown() const {
        std::string shown;
        const auto add = [&](const char* name, const AxisRange& range, const AxisRange& whole) {
            if (range == whole) return;
            for (const double end : {range.Minimum, range.Maximum}) {
                const double part = (end - whole.Minimum) / (whole.Maximum - whole.Minimum);
                shown +=
                    (end == range.Minimum ? name : "..") + std::to_string(std::lround(part * 100));
            }
        };
        add("X", Plot.X.Range(), Plot.Original.X);
        add(" Y", Plot.Y.Range(), Plot.Original.Y);
        add(" T", Plot.Y1.Range(), Plot.Original.Y1);
        return shown;
    }
    // So many hundredths of all three axes, without a trace in the histories.
    void SetView(double from, double to) {
        const auto part = [&](const AxisRange& all) { return PartOf(all, from / 100, to / 100); };
        Plot.ShowView({part(Plot.Original.X), part(Plot.Original.Y), part(Plot.Original.Y1)});
        Navigation.Refresh();
        QCoreApplication::processEvents();
    }

    // A place by hundredths of the axes' width and height, from the top left corner.
    QPoint At(double x, double y) {
        const PixelRect rect = Drawn().ViewOf(ChartAxis::kLeft).Rect();
        return {qRound(rect.Left + x * rect.Width / 100), qRound(rect.Top + y * rect.Height / 100)};
    }
    // Where a reading is drawn.
    QPoint PixelOf(ChartPoint point) {
        const Curve& curve = Plot.Curves()[point.Curve];
        const PixelView view = Drawn().ViewOf(curve.Axis);
        return {qRound(view.PixelX(curve.X[point.Point])),
                qRound(view.PixelY(curve.Y[point.Point]))};
    }
    void Click(const QPoint& at) { QTest::mouseClick(&Drawn(), Qt::LeftButton, {}, at); }
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = {},
              Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&Drawn(), button, modifiers, from);
        QTest::mouseMove(&Drawn(), to);
        QTest::mouseRelease(&Drawn(), button, modifiers, to);
        QCoreApplication::processEvents();
    }
    // So many notches, away from the user for positive ones.
    void Wheel(const QPoint& at, int notches, Qt::KeyboardModifiers modifiers = {}) {
        for (int turned = 0; turned < std::abs(notches); ++turned) {
            QWheelEvent event(at, Drawn().mapToGlobal(at), {}, {0, notches > 0 ? 120 : -120}, {},
                              modifiers, Qt::NoScrollPhase, false);
            event.setTimestamp(now_ += 50);
            QCoreApplication::sendEvent(&Drawn(), &event);
        }
        QCoreApplication::processEvents();
    }
    // The user does nothing for a while.
    void Rest() { now_ += 5000; }
    // Menu items by name, toolbar buttons by key, keys on the plot by their words; "|" between
    // them.
    void Do(const char* steps) {
        for (const QString& step : QString::fromLatin1(steps).split(QLatin1Char('|'))) {
            if (step.startsWith(QStringLiteral("mnu"))) {
                Item(FromQt(step).c_str())->trigger();
            } else if (QAction* const button = Tool(FromQt(step).c_str())) {
                button->trigger();
            } else {
                const QKeyCombination keys = QKeySequence(step)[0];
                QTest::keyClick(&Drawn(), keys.key(), keys.keyboardModifiers());
            }
        }
    }
    // One after the other: what is done, and what is shown then.
    void DoAll(std::initializer_list<std::pair<const char*, const char*>> rows) {
        for (const auto& row : rows) {
            Do(row.first);
            EXPECT_EQ(Shown(), row.second) << row.first;
        }
    }

  private:
    quint64 now_ = 1000;
};

}  // namespace brask
