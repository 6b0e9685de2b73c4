// The data file that the window shows: opening it, building its plot, saving it, describing it. All
// that happens to it without a window happens here.
#pragma once

#include <functional>
#include <string>

#include "app/Commands.h"
#include "data/RecentFiles.h"
#include "data/Session.h"
#include "platform/System.h"
#include "plot/Plotting.h"

namespace brask {

// What shows the document.
// Must outlive the document or its last load. The caption is UTF-8.
class DocumentView {
  public:
    virtual ~DocumentView() = default;

    virtual void ShowCaption(const std::string& caption) = 0;
    // The chart has changed: draw it. It may have no curves.
    // Whoever shows readings lets go of them when it has none: a load is about to replace them.
    virtual void ShowChart() = 0;
    // A load has ended: the readings (perhaps none) are new.
    // Also called when the unit has changed, with or without readings.
    virtual void ShowReadings() = 0;
};

// Keeps copies of the structs of references; what they refer to must outlive it.
class Document {
  public:
    Document(const System& system, const Session& session, const Plotting& plotting,
             Commands& commands);
    // Must be called before any load.
    void SetView(DocumentView& view) { view_ = &view; }

    // The caption of a program that has just started.
    // Later captions are handed to the view as loads begin and end.
    std::string StartCaption() const;
    // Loads a file and plots it. A load under way is not disturbed: the call is then ignored.
    // Returns when the load has ended, with events running meanwhile. Errors in the file are told
    // to the user on the way; only what nobody expects comes out as an exception, so call it under
    // a guard. A file in which something was read goes to the top of the recent files.
    void Open(const std::string& path, DataSource source);
    // Builds the plot anew from the readings, with the options as they are now.
    // Ignored while a load is under way.
    void RebuildPlot();
    // Puts a unit in force: stores it, converts the readings, rebuilds the plot.
    // Must be another unit than the one in force: converting twice would spoil the readings. A unit
    // that cannot be stored still holds for this run.
    void SetTemperatureUnit(bool fahrenheit);
    // Stores the layout and rebuilds the plot.
    void SetGraphType(GraphType type);
    // Stores the first day of the week; a plot of weeks is rebuilt.
    void SetStartWeekOn(int day);
    // Switches the marks at the single readings. The view stays where it is, and from now on every
    // rebuild keeps the view it leaves for zooming out.
    void ToggleDataPoints();
    bool MarksDataPoints() const { return marksDataPoints_; }
    // As chosen in this run, or stored when none was.
    GraphType Layout() const { return layout_; }
    // The message about the file: its headers, first and last reading, count.
    // Empty without readings. UTF-8, lines joined by CR LF.
    std::string HeadersText() const;

    // The readings in the unit in force; changing while a load is under way.
    const DataSet& Data() const { return session_.Data; }
    // Lines of the last load that a message was due for.
    std::int64_t RejectedLines() const { return session_.Loader.RejectedLines(); }

  private:
    // Loads with the user's date order and unit. On an exception no readings are left.
    LoadOutcome Load();
    // Without telling the view.
    void BuildPlot();
    // The stretch of a day or week that was chosen holds for the new plot too; one that its layout
    // does not know gives way to all data.
    void ReapplyPeriod();

    System system_;
    Session session_;
    Plotting plotting_;
    Commands& commands_;
    RecentFiles recent_;
    DocumentView* view_ = nullptr;
    // As chosen in this run, stored or not.
    GraphType layout_;
    bool marksDataPoints_;
};

}  // namespace brask
