#include "app/ui/frmBraskLite.h"

#include <QCloseEvent>
#include <QMimeData>
#include <QTimer>

#include "app/AppTexts.h"
#include "app/ProgramPaths.h"
#include "app/ui/IconStore.h"
#include "data/DataTexts.h"
#include "data/DateTime.h"
#include "data/WindowsVersion.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace app_texts;

namespace {

// The one local file that a drag carries; empty for anything else.
QString DraggedFile(const QMimeData* data) {
    // several files at once would each replace the one before
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

}  // namespace

frmBraskLite::frmBraskLite(const System& system, const Session& session, const Plotting& plotting,
                           Choosers& choosers)
    : system_(system),
      session_(session),
      plotting_(plotting),
      commands_(system.User, system.Words),
      document_(system, session, plotting, commands_),
      recent_(session.Options),
      finder_(
          {plotting.Plot, plotting.Builder, plotting.Actions, session.DateOrder, system.Words}) {
    setObjectName(QStringLiteral("frmBraskLite"));
    setWindowIcon(ProgramIcon());
    // on the window itself, so that a file may be dropped anywhere on it
    setAcceptDrops(true);
    resize(1100, 740);
    document_.SetView(*this);
    files_ = std::make_unique<FileCommands>(
        system_, FileCommandParts{document_, commands_, recent_, session_.Directories, choosers},
        *this);
    handheld_ = std::make_unique<HandheldCommand>(
        system_, session_, HandheldCommandParts{document_, commands_, choosers}, *this);
    plotCommands_ = std::make_unique<PlotCommands>(
        PlotCommands::Parts{plotting_, session_, document_, commands_, system_.User, system_.Locale,
                            system_.Words},
        *this);
    instrument_ =
        std::make_unique<InstrumentCommand>(system_, session_, document_, commands_, *this);
    // before the menus: an item whose command is unknown starts disabled
    RegisterCommands();
    menus_ = std::make_unique<MenuBar>(*menuBar(), system_.Words, commands_);
    BuildPages();
}

void frmBraskLite::BuildPages() {
    const Texts& texts = system_.Words;
    Toolbar1 = new Toolbar(texts, commands_, *menus_, this);
    addToolBar(Toolbar1);
    SSTab1 = new TabControl(this);
    graphPage_ = new GraphPage(
        {plotting_.Plot, plotting_.Navigation, finder_, system_.Locale, texts, commands_}, SSTab1);
    dataPage_ = new DataPage(session_.Data, session_.Unit, texts, SSTab1);
    period_ = new DisplayPeriodPanel({plotting_.Period, plotting_.Navigation, plotting_.Plot,
                                      session_.Options, system_.Locale, texts},
                                     SSTab1);
    graphOptions_ = new GraphOptionsPage(texts, system_.Locale, period_, SSTab1);
    programOptions_ = new ProgramOptionsPage(texts, SSTab1);
    SSTab1->addTab(graphPage_, ToQt(texts, kTabGraph));
    SSTab1->addTab(dataPage_, ToQt(texts, kTabData));
    SSTab1->addTab(graphOptions_, ToQt(texts, kTabGraphOptions));
    SSTab1->addTab(programOptions_, ToQt(texts, kTabProgramOptions));
    setCentralWidget(SSTab1);
    statusBar_ = new StatusBar(texts, system_.Time, this);
    setStatusBar(statusBar_);
    frmBuildingGraph_ = new frmBuildingGraph(texts, this);

    // only when all pages are there: adding the first one selects it
    connect(SSTab1, &QTabWidget::currentChanged, this, [this](int tab) { SSTab1_Click(tab); });
    connect(SSTab1, &TabControl::DisabledTabClicked, this, [this](int tab) { SSTab1_Click(tab); });
    instrument_->Serve(*programOptions_);
    handheld_->Serve(*programOptions_);
    connect(graphOptions_, &GraphOptionsPage::GraphTypeChosen, this,
            [this](int index) { optGraph_Click(index); });
    connect(graphOptions_, &GraphOptionsPage::TemperatureUnitChosen, this,
            [this](bool fahrenheit) { optTemperatureDisplay_Click(fahrenheit); });
    plotCommands_->Attach({*menus_, *Toolbar1, *graphPage_, *graphOptions_, *period_, *statusBar_});
}

void frmBraskLite::RegisterCommands() {
    commands_.Register("mnuFileViewData", [this] { SSTab1->setCurrentIndex(kDataTab); });
    commands_.Register("ShowGraphTab", [this] { SSTab1->setCurrentIndex(kGraphTab); });
    commands_.Register("mnuGraphOptions", [this] { SSTab1->setCurrentIndex(kGraphOptionsTab); });
    commands_.Register("mnuProgramOptions",
                       [this] { SSTab1->setCurrentIndex(kProgramOptionsTab); });
    for (int type = 0; type < 3; ++type) {
        commands_.Register("mnuGraphType_" + std::to_string(type),
                           [this, type] { optGraph_Click(type); });
    }
    commands_.Register("mnuRefresh", [this] { document_.RebuildPlot(); });
    commands_.Register("mnuExit", [this] { close(); });
}

void frmBraskLite::FormLoad() {
    ShowCaption(document_.StartCaption());
    const std::string programDirectory = system_.Information.ProgramDirectory();
    // The order of these steps is fixed: later ones read what earlier ones have set, and messages
    // come in an order that users know.
    connectionText_ = ConnectionText(programDirectory, system_.Disk.Separator());
    windowsKind_ =
        CheckWindowsVersion(system_.Information, system_.User, system_.Words, session_.Options);
    LoadOptions();
    session_.Directories.ResolveDataDirectories(session_.Options, windowsKind_);
    Toolbar1->BuildToolbar();
    PlotColors::Initialise(session_.Options);
    PlotColors colors;
    colors.Load(session_.Options);
    graphOptions_->ShowColors(colors);
    helpFile_ = HelpFilePath(programDirectory, system_.Disk.Separator());
    SSTab1->setCurrentIndex(kGraphTab);
    handheld_->WarnOfMissingSoftware();
    Toolbar1->SyncToolbarButton("PocketPC");
    ShowRecentFiles();
    // only now: before, a change would meet controls that are not made yet
    commands_.OnChange([this] { UpdateDataCommands(); });
    UpdateDataCommands();
    SSTab1_Click(kGraphTab);
    opensMaximized_ = session_.Options.IsYes("OpenFormFullScreen");
    programOptions_->ShowMaximized(opensMaximized_);
}

void frmBraskLite::LoadOptions() {
    // controls are set from what is stored, and nothing that they send must be stored back
    const Settings::LoadingGuard guard(session_.Options);
    const ProgramOptions options =
        LoadProgramOptions(session_.Options, system_.User, system_.Words);
    graphOptions_->ShowOptions(options);
    ShowDirectories(options);
    programOptions_->ShowAddresses(ToQt(session_.Options.Get("InstrumentAddress")),
                                   ToQt(session_.Options.Get("HandheldAddress")));
    menus_->SetChecked("mnuGraphType_" + QString::number(options.GraphType), true);
    plotCommands_->ShowOptions(options);
    menus_->SetChecked(QStringLiteral("mnuUseToleranceCurves"), options.UseToleranceCurve);
    menus_->SetChecked(QStringLiteral("mnuMarkOutOfToleranceInRed"),
                       options.MarkOutOfToleranceInRed);
}

void frmBraskLite::ShowDirectories(const ProgramOptions& options) {
    DirectoryOptions shown;
    const std::string base = session_.Directories.SystemBase(session_.Options, windowsKind_);
    shown.CurrentPath = ToQt(options.UserSpecDir.empty() ? base : options.UserSpecDir);
    shown.DataAccessChoice = windowsKind_ == WindowsKind::kNt5;
    shown.SharedDirectory = ToQt(system_.Disk.Folder(KnownFolder::kSharedDocuments));
    shown.UserDirectory = ToQt(system_.Disk.Folder(KnownFolder::kUserDocuments));
    shown.UserName = ToQt(system_.Information.UserName());
    programOptions_->ShowOptions(options, shown);
}

void frmBraskLite::ShowCaption(const std::string& caption) { setWindowTitle(ToQt(caption)); }

void frmBraskLite::ShowChart() {
    // a load begins, or has ended without readings
    if (plotting_.Plot.Curves().empty()) dataPage_->LetGo();
    graphPage_->ShowChart();
    plotCommands_->ShowPlot();
}

void frmBraskLite::ShowReadings() {
    dataPage_->MarkStale();
    graphPage_->ShowPlotFrame(session_.Data.ReadingCount > 0);
    statusBar_->ShowData(session_.Data, ToQt(BaseName(system_.Disk, session_.Data.CurrentDataFile)),
                         document_.RejectedLines());
    ShowRecentFiles();
}

void frmBraskLite::SSTab1_Click(int tab) {
    if (tab == kDataTab && session_.Data.ReadingCount == 0) {
        // comes back here when the tab changes by it, and ends there
        SSTab1->setCurrentIndex(previousTab_);
        // no box in the middle of a load: it would hold up the reading
        if (commands_.Busy()) return;
        system_.User.ShowMessage(
            {system_.Words.Find(data_texts::kProgramTitle), system_.Words.Find(kNoDataYet)});
        return;
    }
    previousTab_ = tab;
    if (tab == kDataTab) dataPage_->Visit();
    if (tab == kGraphTab) graphPage_->ShowPlotFrame(session_.Data.ReadingCount > 0);
}

void frmBraskLite::optGraph_Click(int index) {
    if (session_.Options.Loading()) return;
    // whichever of menu and button was used, the other one is set; neither sends anything for it
    graphOptions_->ShowGraphType(index);
    menus_->SetChecked("mnuGraphType_" + QString::number(index), true);
    commands_.Guard("optGraph", [&] { document_.SetGraphType(static_cast<GraphType>(index)); });
}

void frmBraskLite::optTemperatureDisplay_Click(bool fahrenheit) {
    // a click on the button that is chosen already would convert what is converted
    if (session_.Options.Loading() || fahrenheit == session_.Unit.Fahrenheit()) return;
    commands_.Guard("optTemperatureDisplay", [&] { document_.SetTemperatureUnit(fahrenheit); });
}

void frmBraskLite::UpdateDataCommands() {
    // what was said about the file before does not hold for the one that is being loaded
    if (commands_.Busy()) statusBar_->clearMessage();
    menus_->SyncEnabled();
    Toolbar1->SyncAll();
    graphPage_->SyncEnabled();
    if (!commands_.HasReadings() && SSTab1->currentIndex() == kDataTab) {
        SSTab1->setCurrentIndex(kGraphTab);
    }
    // after moving away: disabling the tab in front would make Qt choose another one by itself
    SSTab1->setTabEnabled(kDataTab, commands_.HasReadings());
    graphOptions_->setEnabled(!commands_.Busy());
    programOptions_->setEnabled(!commands_.Busy());
    SyncRecentFiles();
}

void frmBraskLite::SyncRecentFiles() {
    menus_->Submenu(QStringLiteral("mnuRecentFiles"))
        ->setEnabled(!commands_.Busy() && !recent_.List().empty());
}

void frmBraskLite::ShowRecentFiles() {
    QMenu* const menu = menus_->Submenu(QStringLiteral("mnuRecentFiles"));
    menu->clear();
    QStringList paths;
    for (const std::string& path : recent_.List()) {
        paths << ToQt(path);
        QAction* const entry = menu->addAction(
            QStringLiteral("&%1  %2")
                // the tenth has the key 0
                .arg(paths.size() % 10)
                .arg(QString(paths.last()).replace(QLatin1Char('&'), QStringLiteral("&&"))));
        connect(entry, &QAction::triggered, this, [this, path] { OpenLater(ToQt(path)); });
    }
    menu->addSeparator();
    QAction* const clear = menu->addAction(ToQt(system_.Words, kClearList));
    connect(clear, &QAction::triggered, this, [this] {
        recent_.Clear();
        // later: the list is made anew, and with it the very entry that is being triggered
        QTimer::singleShot(0, this, [this] { ShowRecentFiles(); });
    });
    graphPage_->ShowRecentFiles(paths, [this](const QString& path) { OpenLater(path); });
    SyncRecentFiles();
}

void frmBraskLite::OpenLater(const QString& path) {
    // A load would otherwise run inside the drop, where the other program waits for an answer, or
    // inside the click on an entry that the load removes.
    QTimer::singleShot(0, this, [this, path] { OpenFile(path); });
}

void frmBraskLite::closeEvent(QCloseEvent* event) {
    // work under way sees that the program ends and returns; the window closes at once
    system_.User.EndProgram();
    event->accept();
}

void frmBraskLite::dragEnterEvent(QDragEnterEvent* event) {
    if (!commands_.Busy() && !DraggedFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void frmBraskLite::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    // read now: what was dragged is gone when the load begins
    OpenLater(DraggedFile(event->mimeData()));
}

}  // namespace brask
