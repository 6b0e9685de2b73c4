#include "app/ui/PlotCommands.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include "app/AppTexts.h"
#include "platform/qt/QtText.h"
#include "plot/ViewDescription.h"
#include "plot/ui/PlotInput.h"
#include "plot/ui/frmChangeYScale.h"

namespace brask {

using namespace app_texts;

namespace {

struct MoveRow {
    const char* Item;
    ChartAction Action;
};

// The items say where the view goes, the actions where the curves go: always the opposite way.
constexpr MoveRow kMoves[] = {
    {"mnuMoveViewAreaLeft", ChartAction::kScrollRight},
    {"mnuMoveViewAreaRight", ChartAction::kScrollLeft},
    {"mnuMoveViewAreaUp", ChartAction::kScrollDownBoth},
    {"mnuMoveViewAreaDown", ChartAction::kScrollUpBoth},
    {"mnuMoveViewingAreaLeftFast", ChartAction::kScrollRightFast},
    {"mnuMoveViewingAreaRightFast", ChartAction::kScrollLeftFast},
    {"mnuMoveViewingAreaUpFast", ChartAction::kScrollDownBothFast},
    {"mnuMoveViewingAreaDownFast", ChartAction::kScrollUpBothFast},
};

// The context menu of the plot; an empty name is a line.
constexpr const char* kContextMenu[] = {"mnuZoomIn",
                                        "mnuCanZoomOut",
                                        "mnuRestoreOriginalGraphScale",
                                        "",
                                        "mnuCenterDot",
                                        "mnuSwitchActiveYAxis",
                                        "",
                                        "mnuAddTextToPlot",
                                        "mnuAddTextToDataPoint",
                                        "mnuRemoveTextComment",
                                        "",
                                        "mnuCopyPlot"};

}  // namespace

PlotCommands::PlotCommands(const Parts& parts, QWidget& window)
    : QObject(&window), parts_(parts), window_(window) {
    Commands& registry = parts_.Registry;
    PlotNavigation& navigation = parts_.Shown.Navigation;
    registry.Register("mnuZoomIn", [&navigation] { navigation.ZoomIn(); });
    registry.Register("mnuCanZoomOut", [&navigation] { navigation.ZoomOut(); });
    registry.Register("mnuRestoreOriginalGraphScale", [&navigation] { navigation.Restore(); });
    registry.Register("mnuCenterDot", [&navigation] { navigation.CenterSelected(); });
    registry.Register("mnuChangeYScale", [this] { mnuChangeYScale_Click(); });
    registry.Register("mnuSwitchActiveYAxis", [this] { mnuSwitchActiveYAxis_Click(); });
    registry.Register("mnuMarkDataPoints", [this] { mnuMarkDataPoints_Click(); });
    registry.Register("mnuCopyPlot",
                      [this] { parts_.Shown.Actions.Execute(ChartAction::kCopyChart); });
    registry.Register("mnuDisplayPeriod_0",
                      [this] { screens_->Period.Choose(PeriodOption::kAllData); });
    // the other periods need texts, which are typed on the page of the options
    registry.Register("mnuDisplayPeriod_1", [this] { parts_.Registry.Run("mnuGraphOptions"); });
    registry.Register("mnuFindPoint", [this] {
        parts_.Registry.Run("ShowGraphTab");
        screens_->Page.FocusFindPoint();
    });
    RegisterMoves();
    registry.SetAllowed("mnuCanZoomOut", false);
}

void PlotCommands::RegisterMoves() {
    for (const MoveRow& row : kMoves) {
        parts_.Registry.Register(
            row.Item, [this, action = row.Action] { parts_.Shown.Actions.Execute(action); });
    }
}

void PlotCommands::Attach(const Screens& screens) {
    screens_.emplace(screens);
    HookRefresh();
    ConnectOptions();
    ListenToPlot();
    ShowActiveAxis();
}

void PlotCommands::HookRefresh() {
    ViewRefresh& steps = parts_.Shown.Navigation.Steps();
    steps.Hook(RefreshStep::kScrollBar, [this] { screens_->Page.ShowScrollBar(); });
    steps.Hook(RefreshStep::kReadout, [this] { ShowReadout(); });
    steps.Hook(RefreshStep::kZoomOut, [this] {
        parts_.Registry.SetAllowed("mnuCanZoomOut", parts_.Shown.Navigation.CanZoomOut());
    });
    steps.Hook(RefreshStep::kDraw, [this] { screens_->Page.Plot().ShowView(); });
}

void PlotCommands::ConnectOptions() {
    GraphOptionsPage& options = screens_->Options;
    connect(&options, &GraphOptionsPage::CursorTypeChosen, this,
            [this](int index) { optCursorType_Click(index); });
    connect(&options, &GraphOptionsPage::StartWeekChosen, this,
            [this](int day) { optStartWeek_Click(day); });
    connect(&options, &GraphOptionsPage::YScalingChosen, this, [this](bool scales) {
        if (!parts_.Data.Options.Loading())
            parts_.Data.Options.SaveFlag("ScaleYAxisOnZoom", scales);
    });
    connect(&options, &GraphOptionsPage::DataPointsToggled, this, [this] {
        if (!parts_.Data.Options.Loading()) parts_.Registry.Run("mnuMarkDataPoints");
    });
    connect(&screens_->Period, &DisplayPeriodPanel::OptionShown, this, [this](int index) {
        screens_->Menus.SetChecked(QStringLiteral("mnuDisplayPeriod_0"), index == 0);
    });
}

void PlotCommands::ListenToPlot() {
    ChartActions& actions = parts_.Shown.Actions;
    const auto run = [this](const char* name) {
        return [this, name] { parts_.Registry.Run(name); };
    };
    PlotRequests requests{run("mnuZoomIn"), run("mnuRestoreOriginalGraphScale"),
                          run("mnuAddTextToDataPoint"),
                          [this](const QPoint& at) { ShowContextMenu(at); },
                          [this] { return parts_.Data.Options.IsYes("ScaleYAxisOnZoom"); }};
    DynaPlot& plot = screens_->Page.Plot();
    // the plot owns it
    new PlotInput(plot, parts_.Shown.Plot, actions, std::move(requests));
    actions.OnPointSelected([this](ChartPoint point) {
        parts_.Shown.Selection.PointSelected(point);
        parts_.Shown.Navigation.Refresh();
    });
    actions.OnOpenProperties(run("mnuGraphOptions"));
    actions.OnCopyChart(
        [&plot] { QGuiApplication::clipboard()->setImage(plot.Picture(plot.size())); });
    parts_.Shown.Selection.OnChange([this] {
        parts_.Registry.SetAllowed("mnuAddTextToDataPoint",
                                   parts_.Shown.Selection.Current().has_value());
    });
    parts_.Registry.SetAllowed("mnuAddTextToDataPoint", false);
}

void PlotCommands::ShowOptions(const ProgramOptions& options) {
    if (options.CursorStyle) {
        parts_.Shown.Plot.Cursor.Style = static_cast<CursorStyle>(*options.CursorStyle);
    }
    ShowDataPoints();
}

void PlotCommands::ShowPlot() {
    const int firstDay = parts_.Data.Options.Index("StartWeekOn", 2);
    screens_->Period.ShowPlot(parts_.Current.Layout(), firstDay);
}

void PlotCommands::ShowReadout() {
    const Chart& plot = parts_.Shown.Plot;
    const auto& selected = parts_.Shown.Selection.Current();
    std::string range;
    if (!plot.Curves().empty()) {
        range = VisibleRangeText(plot.X.Range(), parts_.Shown.Builder.Layout(),
                                 parts_.Data.Options.Index("StartWeekOn", 2), parts_.Locale);
    }
    std::string values;
    if (selected && selected->Reading) {
        values = SelectedReadingText(parts_.Data.Data, *selected->Reading, parts_.Data.Unit,
                                     parts_.Words);
    }
    screens_->Status.ShowView(ToQt(values), ToQt(range));
    screens_->Period.ShowVisibleRange(ToQt(range));
    screens_->Page.Describe(ToQt(parts_.Words.Fill(kPlotDescription, {plot.Readout, range})));
    ShowActiveAxis();
}

void PlotCommands::ShowActiveAxis() {
    const bool left = parts_.Shown.Plot.ActiveAxis == ChartAxis::kLeft;
    const QString caption = ToQt(parts_.Words, left ? kActivateTemperature : kActivateGas);
    QAction* const item = screens_->Menus.Item(QStringLiteral("mnuSwitchActiveYAxis"));
    if (item->text() == caption) return;
    item->setText(caption);
    screens_->Buttons.SetToolTip("SwitchActiveYAxis", WithoutMnemonics(caption));
    screens_->Buttons.SyncToolbarButton("SwitchActiveYAxis");
}

void PlotCommands::ShowContextMenu(const QPoint& at) {
    QMenu menu;
    for (const QString name : kContextMenu) {
        if (name.isEmpty()) {
            menu.addSeparator();
        } else {
            menu.addAction(screens_->Menus.Item(name));
        }
    }
    menu.exec(at);
}

void PlotCommands::mnuChangeYScale_Click() {
    frmChangeYScale dialog(
        {parts_.Shown.Plot, parts_.Shown.Navigation, parts_.Locale, parts_.Data.DateOrder,
         parts_.Words, parts_.Shown.Builder.Layout() == GraphType::kContinuous},
        &window_);
    dialog.exec();
}

void PlotCommands::mnuSwitchActiveYAxis_Click() {
    parts_.Shown.Navigation.SwitchActiveAxis();
    ShowActiveAxis();
}

void PlotCommands::mnuMarkDataPoints_Click() {
    parts_.Current.ToggleDataPoints();
    ShowDataPoints();
}

void PlotCommands::ShowDataPoints() {
    const bool marked = parts_.Current.MarksDataPoints();
    screens_->Menus.SetChecked(QStringLiteral("mnuMarkDataPoints"), marked);
    screens_->Options.ShowDataPoints(marked);
    screens_->Buttons.SetToolTip("Markers",
                                 ToQt(parts_.Words, marked ? kDoNotMarkPoints : kMarkPoints));
}

void PlotCommands::optCursorType_Click(int index) {
    if (parts_.Data.Options.Loading()) return;
    parts_.Data.Options.Save("CursorType", std::to_string(index));
    if (const auto style = CursorStyleOf(index)) {
        parts_.Shown.Plot.Cursor.Style = static_cast<CursorStyle>(*style);
    }
    parts_.Shown.Navigation.Refresh();
}

void PlotCommands::optStartWeek_Click(int day) {
    if (parts_.Data.Options.Loading()) return;
    parts_.Registry.Guard("optStartWeek", [&] { parts_.Current.SetStartWeekOn(day); });
    ShowPlot();
    screens_->Period.StoreLastDay();
}

}  // namespace brask
