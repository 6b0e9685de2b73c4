// The commands about the plot's view: zooming, moving, selecting, the active axis, the marks at the
// readings. Connects the plot's services with menus, toolbar, pages and status bar.
#pragma once

#include <QObject>

#include "app/Commands.h"
#include "app/Document.h"
#include "app/ui/DisplayPeriodPanel.h"
#include "app/ui/GraphOptionsPage.h"
#include "app/ui/GraphPage.h"
#include "app/ui/MenuBar.h"
#include "app/ui/StatusBar.h"
#include "app/ui/Toolbar.h"
#include "plot/Plotting.h"

namespace brask {

class PlotCommands final : public QObject {
    Q_OBJECT

  public:
    // What the commands work on; all must outlive the object.
    struct Parts {
        Plotting Shown;
        Session Data;
        Document& Current;
        Commands& Registry;
        UserInterface& User;
        const UserLocale& Locale;
        const Texts& Words;
    };
    // What shows their effect.
    struct Screens {
        MenuBar& Menus;
        Toolbar& Buttons;
        GraphPage& Page;
        GraphOptionsPage& Options;
        DisplayPeriodPanel& Period;
        StatusBar& Status;
    };

    // Registers the commands, before the menus are made.
    PlotCommands(const Parts& parts, QWidget& window);
    // Once everything is made: from now on every change of the view is shown.
    void Attach(const Screens& screens);
    // Takes the stored choices over into the plot; sends nothing.
    void ShowOptions(const ProgramOptions& options);
    // The plot was built anew, or has gone.
    void ShowPlot();

  private:
    void RegisterMoves();
    void HookRefresh();
    void ConnectOptions();
    void ListenToPlot();
    // The steps of the view-changed refresh that concern texts.
    void ShowReadout();
    void ShowActiveAxis();
    void ShowDataPoints();
    void ShowContextMenu(const QPoint& at);

    // Handlers, by the names of their menu items and controls.
    void mnuChangeYScale_Click();
    void mnuMarkDataPoints_Click();
    void mnuSwitchActiveYAxis_Click();
    void optCursorType_Click(int index);
    void optStartWeek_Click(int day);

    Parts parts_;
    QWidget& window_;
    std::optional<Screens> screens_;
};

}  // namespace brask
