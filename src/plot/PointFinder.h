// Selects the reading nearest to a date and time that the user types.
#pragma once

#include <string>

#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/ChartActions.h"
#include "plot/PlotBuilder.h"

namespace brask {

class PointFinder {
  public:
    // All must outlive the object.
    struct Parts {
        const Chart& Plot;
        const PlotBuilder& Builder;
        ChartActions& Actions;
        LongDateOrder DateOrder;
        const Texts& Words;
    };
    explicit PointFinder(const Parts& parts) : parts_(parts) {}

    // The message about a text that is no date; empty when it can be looked for.
    std::string Check(const std::string& text) const;
    // Selects on the active axis, moving the view to the reading. The message when there is nothing
    // to select: the text is no date, or it lies outside the data.
    std::string Find(const std::string& text) const;

  private:
    Parts parts_;
};

}  // namespace brask
