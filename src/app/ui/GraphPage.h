// The first tab: the plot with what belongs to it, or, without readings, what to do first.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStringList>
#include <QVBoxLayout>
#include <functional>

#include "app/Commands.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/PlotNavigation.h"
#include "plot/PointFinder.h"
#include "plot/ui/DynaPlot.h"
#include "plot/ui/PlotScrollBar.h"

namespace brask {

// Makes and owns the one plot widget.
class GraphPage final : public QStackedWidget {
    Q_OBJECT

  public:
    // All references must outlive the page. The chart may be empty.
    struct Parts {
        const Chart& Plot;
        PlotNavigation& Navigation;
        const PointFinder& Finder;
        const UserLocale& Locale;
        const Texts& Words;
        Commands& Registry;
    };
    GraphPage(const Parts& parts, QWidget* parent);

    // The plot widget, for those who listen to its mouse and keys.
    DynaPlot& Plot() { return *DynaPlot1; }
    // The scroll bar follows the visible range.
    void ShowScrollBar() { Scroll1->ShowView(parts_.Plot); }
    // Moves the cursor of the keyboard into the box for a date.
    void FocusFindPoint();
    // What those hear who do not see the plot.
    void Describe(const QString& description) { DynaPlot1->setAccessibleDescription(description); }

    // With data the plot, without it the advice.
    // Either face keeps its state while the other is shown.
    void ShowPlotFrame(bool hasReadings);
    // Draws the chart as it is now.
    void ShowChart() { DynaPlot1->ShowChart(); }
    // Gives the large buttons the state of their commands.
    // Called after every change of the commands.
    void SyncEnabled();
    // Lists files to open with one click; `open` is told which.
    // Replaces the list. `open` is called from a button's click, so it must put off what changes
    // this list again.
    void ShowRecentFiles(const QStringList& paths, const std::function<void(QString)>& open);

  protected:
    // Redraws the icons when the desktop turns dark or light.
    void changeEvent(QEvent* event) override;

  private:
    // The two faces of the page.
    QWidget* BuildAdvice();
    QWidget* BuildPlot();
    QLayout* BuildFindRow(QWidget* frame);
    // Says beside the box what is wrong with its text, as it is typed.
    void CheckFindPoint();
    void cmdFindPoint_Click();
    // A button that runs the toolbar command of that key, with its picture and tip.
    QPushButton* LargeButton(const char* name, const char* key);
    // Again after every change of the palette: the icons take its colours.
    void DrawIcons();

    Parts parts_;
    QWidget* frameCommandEnabled = nullptr;
    // Each carries its toolbar key as a property.
    QList<QPushButton*> largeButtons_;
    QLabel* lblRecent = nullptr;
    QVBoxLayout* recentList_ = nullptr;
    DynaPlot* DynaPlot1 = nullptr;
    PlotScrollBar* Scroll1 = nullptr;
    QLineEdit* txtFindPoint = nullptr;
    QPushButton* cmdFindPoint = nullptr;
    QLabel* lblFindPointErr = nullptr;
    QWidget* frameGraph = nullptr;
};

}  // namespace brask
