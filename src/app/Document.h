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
class DocumentView {
  public:
    virtual ~DocumentView() = default;

    virtual void ShowCaption(const std::string& caption) = 0;
    // The chart has changed: draw it. It may have no curves.
    virtual void ShowChart() = 0;
    // A load has ended: the readings (perhaps none) are new.
    virtual void ShowReadings() = 0;
};

class Document {
  public:
    Document(const System& system, const Session& session, const Plotting& plotting,
             Commands& commands);
    // Must be called before any load.
    void SetView(DocumentView& view) { view_ = &view; }

    // The caption of a program that has just started.
    std::string StartCaption() const;
    // Loads a file and plots it. A load under way is not disturbed: the call is then ignored.
    void Open(const std::string& path, DataSource source);
    // Builds the plot anew from the readings, with the options as they are now.
    void RebuildPlot();
    // Puts a unit in force: stores it, converts the readings, rebuilds the plot.
    void SetTemperatureUnit(bool fahrenheit);
    // Stores the layout and rebuilds the plot.
    void SetGraphType(GraphType type);
    GraphType Layout() const { return layout_; }
    // The message about the file: its headers, first and last reading, count.
    std::string HeadersText() const;

    const DataSet& Data() const { return session_.Data; }
    std::int64_t RejectedLines() const { return session_.Loader.RejectedLines(); }

  private:
    LoadOutcome Load();
    void BuildPlot();

    System system_;
    Session session_;
    Plotting plotting_;
    Commands& commands_;
    RecentFiles recent_;
    DocumentView* view_ = nullptr;
    GraphType layout_;  // as chosen in this run, stored or not
};

}  // namespace brask
