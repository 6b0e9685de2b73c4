// The selected reading: what the program remembers of it, and the line that describes it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "data/DataSet.h"
#include "data/TemperatureUnit.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/PlotBuilder.h"

namespace brask {

struct SelectedReading {
    ChartPoint Place;
    double X = 0;
    double Y = 0;
    bool IsTemperature = false;
    std::string PeriodName;              // of its curve
    std::string Readout;                 // UTF-8
    std::optional<std::size_t> Reading;  // index in the data set

    bool operator==(const SelectedReading&) const = default;
};

class PointSelection {
  public:
    // What the readout is made from; all must outlive the object.
    struct Parts {
        Chart& Plot;
        const PlotBuilder& Builder;
        const DataSet& Data;
        const TemperatureUnit& Unit;
        const UserLocale& Locale;
        const Texts& Words;
    };
    explicit PointSelection(const Parts& parts) : parts_(parts) {}

    // The chart has selected a point: remembers it, puts its line on the chart and tells the
    // listener. The point that was selected already only gets its line again. Ignored while
    // suppressed.
    void PointSelected(ChartPoint point);
    // Nothing is selected any more; the readout is the rebuild's own.
    void Forget();
    const std::optional<SelectedReading>& Current() const { return current_; }
    // Told of every other selection, and of its end.
    void OnChange(std::function<void()> listener) { changed_ = std::move(listener); }

    // While one of these lives, what the chart reports about its points is ignored: a rebuild is
    // no choice of the user's.
    class Suppression {
      public:
        explicit Suppression(PointSelection& selection) : selection_(selection) {
            ++selection_.suppressed_;
        }
        ~Suppression() { --selection_.suppressed_; }
        Suppression(const Suppression&) = delete;
        Suppression& operator=(const Suppression&) = delete;

      private:
        PointSelection& selection_;
    };

  private:
    std::string ReadoutOf(const SelectedReading& selected) const;
    std::string DayReadout(const SelectedReading& selected) const;

    Parts parts_;
    std::optional<SelectedReading> current_;
    std::function<void()> changed_ = [] {};
    int suppressed_ = 0;
};

}  // namespace brask
