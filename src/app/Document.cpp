#include "app/Document.h"

#include <exception>

#include "app/AppTexts.h"
#include "data/DataTexts.h"
#include "data/DateTime.h"
#include "data/Windows1252.h"

namespace brask {

using namespace app_texts;

Document::Document(const System& system, const Session& session, const Plotting& plotting,
                   Commands& commands)
    : system_(system),
      session_(session),
      plotting_(plotting),
      commands_(commands),
      recent_(session.Options),
      layout_(static_cast<GraphType>(session.Options.Index("GraphType", 3))),
      marksDataPoints_(session.Options.IsYes("UseDataMarkers")) {}

std::string Document::StartCaption() const {
    return system_.Words.Fill(kCaptionNoData, {system_.Words.Find(data_texts::kProgramTitle)});
}

void Document::Open(const std::string& path, DataSource source) {
    if (commands_.Busy()) return;
    // from here on events run, and no command may disturb what is half done
    commands_.SetBusy(true);
    session_.Data.Source = source;
    // absolute, since the list of recent files outlives the directory that the program runs in
    session_.Data.CurrentDataFile = system_.Disk.Absolute(path);
    // the curves look into the arrays that the load re-creates while events run
    plotting_.Builder.Clear();
    plotting_.Selection.Forget();
    plotting_.Navigation.Forget();
    view_->ShowChart();
    const std::string title = system_.Words.Find(data_texts::kProgramTitle);
    // a caption with the old name would stand over readings that are gone
    view_->ShowCaption(title);

    const LoadOutcome outcome = Load();
    commands_.SetBusy(false);
    commands_.SetHasReadings(session_.Data.ReadingCount > 0);
    // the windows are closing: there is nobody left to show anything to
    if (system_.User.Ended()) return;
    if (outcome == LoadOutcome::kRead) {
        // a file without readings is not worth offering again
        recent_.Add(session_.Data.CurrentDataFile);
        BuildPlot();
        view_->ShowCaption(system_.Words.Fill(
            kCaptionFile, {title, BaseName(system_.Disk, session_.Data.CurrentDataFile)}));
    }
    view_->ShowChart();
    view_->ShowReadings();
    plotting_.Navigation.AfterRebuild();
}

LoadOutcome Document::Load() {
    try {
        return session_.Loader.LoadDataFile({session_.DateOrder, session_.Unit});
    } catch (const std::exception&) {
        // out of memory in the middle of it: the arrays may be of different lengths
        session_.Data.Recreate(0);
        commands_.SetHasReadings(false);
        view_->ShowReadings();
        // whoever guards the command tells the user
        throw;
    }
}

void Document::RebuildPlot() {
    if (commands_.Busy()) return;
    BuildPlot();
    view_->ShowChart();
    plotting_.Navigation.AfterRebuild();
}

void Document::BuildPlot() {
    PlotOptions options = ReadPlotOptions(session_.Options, session_.Unit);
    // choices that could not be stored would come back here as the old ones
    options.Layout = layout_;
    options.MarkDataPoints = marksDataPoints_;
    plotting_.Navigation.BeforeRebuild();
    {
        const PointSelection::Suppression quiet(plotting_.Selection);
        plotting_.Builder.Rebuild(options);
    }
    plotting_.Selection.Forget();
    ReapplyPeriod();
}

void Document::ReapplyPeriod() {
    DisplayPeriod& period = plotting_.Period;
    if (!DisplayPeriod::Fits(period.Option, layout_)) {
        period.Option = PeriodOption::kAllData;
        session_.Options.Save("DisplayPeriod", "0");
    }
    // a range of dates starts anew with the plot: its boxes follow the axis
    if (period.Option != PeriodOption::kTimes && period.Option != PeriodOption::kDays) return;
    if (const auto window = period.Window(plotting_.Plot.Original.X)) {
        plotting_.Plot.X.SetRange(window->Minimum, window->Maximum);
    }
}

void Document::ToggleDataPoints() {
    marksDataPoints_ = !marksDataPoints_;
    session_.Options.SaveFlag("UseDataMarkers", marksDataPoints_);
    plotting_.Navigation.KeepViews();
    if (session_.Data.ReadingCount == 0 || commands_.Busy()) return;
    const ViewRecord view = plotting_.Plot.View();
    BuildPlot();
    plotting_.Plot.SetView(view);
    view_->ShowChart();
    plotting_.Navigation.AfterRebuild();
}

void Document::SetStartWeekOn(int day) {
    session_.Options.Save("StartWeekOn", std::to_string(day));
    if (session_.Data.ReadingCount > 0 && layout_ == GraphType::kOverlapWeeks) RebuildPlot();
}

void Document::SetTemperatureUnit(bool fahrenheit) {
    // the readings themselves are converted; saved files are copies and stay in °C
    session_.Options.Save("DisplayTemperatureUnits", fahrenheit ? "1" : "0");
    session_.Unit.SwitchTo(fahrenheit, session_.Data);
    if (session_.Data.ReadingCount > 0) RebuildPlot();
    view_->ShowReadings();
}

void Document::SetGraphType(GraphType type) {
    layout_ = type;
    // stored without readings too: the next file opens in this layout
    session_.Options.Save("GraphType", std::to_string(static_cast<int>(type)));
    if (session_.Data.ReadingCount > 0) RebuildPlot();
}

std::string Document::HeadersText() const {
    const DataSet& data = session_.Data;
    if (data.ReadingCount == 0) return "";
    return system_.Words.Fill(
        kHeaders,
        {data.CurrentDataFile, Windows1252ToUtf8(data.InstrumentName),
         Windows1252ToUtf8(data.InstrumentSerialNumber), Windows1252ToUtf8(data.InstrumentDate),
         Windows1252ToUtf8(data.InstrumentGas), FormatReadingTime(data.Times().front()),
         FormatReadingTime(data.Times().back()), std::to_string(data.ReadingCount)});
}

}  // namespace brask
