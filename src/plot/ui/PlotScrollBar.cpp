#include "plot/ui/PlotScrollBar.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "plot/AxisMoves.h"

namespace brask {
namespace {

// Finer than any screen is wide, and far from the end of int.
constexpr int kSteps = 1000000;

}  // namespace

PlotScrollBar::PlotScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setObjectName(QStringLiteral("Scroll1"));
    setEnabled(false);
    connect(this, &QScrollBar::valueChanged, this, [this](int value) {
        if (unit_ > 0) emit Scrolled(origin_ + value * unit_);
    });
}

void PlotScrollBar::ShowView(const Chart& chart) {
    const QSignalBlocker quiet(this);
    const AxisRange& whole = chart.Original.X;
    const AxisRange& shown = chart.X.Range();
    const bool scrolls = !chart.Curves().empty() && IsShowable(whole) && IsShowable(shown) &&
                         SpanOf(shown) < SpanOf(whole);
    setEnabled(scrolls);
    if (!scrolls) {
        unit_ = 0;
        setRange(0, 0);
        return;
    }
    unit_ = SpanOf(whole) / kSteps;
    origin_ = whole.Minimum;
    const int page = std::max(1, static_cast<int>(std::lround(SpanOf(shown) / unit_)));
    setRange(0, std::max(0, kSteps - page));
    setPageStep(page);
    setSingleStep(std::max(1, page / 10));
    // a view beside the data leaves the slider at the nearer end
    const double place = std::clamp((shown.Minimum - origin_) / unit_, 0.0, 1.0 * maximum());
    setValue(static_cast<int>(std::lround(place)));
}

}  // namespace brask
