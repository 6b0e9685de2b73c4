// The main window: a frame around the menus, the toolbar, the pages and the status bar. It owns
// them and connects them; the work behind the commands is elsewhere.
#pragma once

#include <QMainWindow>

#include "app/Commands.h"
#include "app/Document.h"
#include "app/ui/DataPage.h"
#include "app/ui/FileCommands.h"
#include "app/ui/GraphOptionsPage.h"
#include "app/ui/GraphPage.h"
#include "app/ui/HandheldCommand.h"
#include "app/ui/InstrumentCommand.h"
#include "app/ui/MenuBar.h"
#include "app/ui/PlotCommands.h"
#include "app/ui/ProgramOptionsPage.h"
#include "app/ui/StatusBar.h"
#include "app/ui/TabControl.h"
#include "app/ui/Toolbar.h"
#include "app/ui/frmBuildingGraph.h"
#include "data/ProgramOptions.h"
#include "data/RecentFiles.h"
#include "data/Session.h"
#include "platform/System.h"
#include "platform/qt/Choosers.h"
#include "platform/qt/QtUserInterface.h"
#include "plot/Plotting.h"

namespace brask {

// Order matters among its parts: commands are registered before the menus that show their state,
// menus exist before the toolbar that copies it.
class frmBraskLite final : public QMainWindow, private DocumentView {
    Q_OBJECT

  public:
    // What the structs refer to must outlive the window. Before FormLoad it shows no option and the
    // toolbar is empty.
    frmBraskLite(const System& system, const Session& session, const Plotting& plotting,
                 Choosers& choosers);

    // The start-up sequence; run once, before the window is shown.
    // May show messages, and may end the program: ask the user interface before showing it.
    void FormLoad();
    // Where progress and notices of the core are to be shown.
    // Valid as long as the window.
    ProgressView& Progress() { return *frmBuildingGraph_; }
    NoticeView& Notices() { return *statusBar_; }
    // Opens a data file from disk.
    // Returns when the load has ended; ignored while another one runs.
    void OpenFile(const QString& path) { files_->OpenFile(path); }
    // The link to the instrument, which main fills in.
    InstrumentCommand& Instrument() { return *instrument_; }
    // Downloads as the menu item does.
    void Download() { commands_.Run("mnuReadDataFromTalvexK42"); }
    // For the command line, before FormLoad, whose notice depends on the handheld; and for tests.
    HandheldCommand& Handheld() { return *handheld_; }
    // Whether the stored options ask for a maximized window.
    // Known after FormLoad.
    bool OpensMaximized() const { return opensMaximized_; }
    // For tests and for pieces that come to hook in.
    Commands& Registry() { return commands_; }

  protected:
    // Ends the program, also in the middle of a load.
    void closeEvent(QCloseEvent* event) override;
    // One data file can be dropped anywhere on the window, except while long work runs.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    // In the order in which the tabs stand.
    enum Tab { kGraphTab, kDataTab, kGraphOptionsTab, kProgramOptionsTab };

    // Makes the toolbar, the tabs with their pages, the status bar and the progress window.
    void BuildPages();
    // The commands that concern the window itself; those about files come with FileCommands.
    void RegisterCommands();
    // Steps of the start-up.
    void LoadOptions();  // stored options into controls, under the loading guard
    void ShowDirectories(const ProgramOptions& options);

    // The document's calls. An empty chart means that the readings are about to go.
    void ShowCaption(const std::string& caption) override;
    void ShowChart() override;
    void ShowReadings() override;

    // A tab was selected, or a click met a disabled one: without readings the grid's tab gives
    // way to the one shown before.
    void SSTab1_Click(int tab);
    // The one handler of the layout: keeps options, menu and settings equal, rebuilds the plot.
    void optGraph_Click(int index);
    // Acts on a change alone.
    void optTemperatureDisplay_Click(bool fahrenheit);
    // Gives menus, buttons, tabs and option pages the state that the commands have now.
    void UpdateDataCommands();
    // Lists the recent files in the menu and on the page without data.
    void ShowRecentFiles();
    // The submenu is disabled while its list is empty or a load runs.
    void SyncRecentFiles();
    // Opens a file that was dropped or named in a list, once the events under way are done.
    void OpenLater(const QString& path);

    System system_;
    Session session_;
    Plotting plotting_;
    // Made before menus and pages, which refer to it. Child widgets go after it, and by then no
    // longer use it.
    Commands commands_;
    Document document_;
    RecentFiles recent_;
    PointFinder finder_;
    // Found at start-up; decides where data lies.
    WindowsKind windowsKind_ = WindowsKind::kNotClassified;
    // Composed at start-up; commands that come later read them.
    std::string connectionText_;
    std::string helpFile_;
    int previousTab_ = kGraphTab;  // where the grid's tab returns to without readings
    bool opensMaximized_ = false;

    std::unique_ptr<MenuBar> menus_;
    std::unique_ptr<FileCommands> files_;
    std::unique_ptr<HandheldCommand> handheld_;
    std::unique_ptr<PlotCommands> plotCommands_;
    std::unique_ptr<InstrumentCommand> instrument_;
    // Children of the window, which deletes them.
    Toolbar* Toolbar1 = nullptr;
    TabControl* SSTab1 = nullptr;
    GraphPage* graphPage_ = nullptr;
    DataPage* dataPage_ = nullptr;
    GraphOptionsPage* graphOptions_ = nullptr;
    DisplayPeriodPanel* period_ = nullptr;
    ProgramOptionsPage* programOptions_ = nullptr;
    StatusBar* statusBar_ = nullptr;
    frmBuildingGraph* frmBuildingGraph_ = nullptr;
};

}  // namespace brask
