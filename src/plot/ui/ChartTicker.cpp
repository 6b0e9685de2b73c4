#include "plot/ui/ChartTicker.h"

#include "plot/AxisTicks.h"

namespace brask {

ChartTicker::ChartTicker(const Chart& chart, const UserLocale& locale,
                         std::function<std::size_t()> mostLabels)
    : chart_(chart), locale_(locale), mostLabels_(std::move(mostLabels)) {}

// NOLINTNEXTLINE(readability-function-size): the drawing library's signature
void ChartTicker::generate(const QCPRange& range, const QLocale& /*locale*/, QChar /*formatChar*/,
                           int /*precision*/, QVector<double>& ticks, QVector<double>* subTicks,
                           QVector<QString>* tickLabels) {
    ticks.clear();
    // the axis passes null for what it does not show
    if (subTicks != nullptr) subTicks->clear();
    QVector<QString> labels;
    const XAxisLabels& table = chart_.Labels;
    if (!table.DateFormat.empty()) {
        for (const double tick : DateTicks({range.lower, range.upper}, mostLabels_())) {
            ticks.append(tick);
            labels.append(QString::fromStdString(FormatDateLabel(tick, table.DateFormat, locale_)));
        }
    }
    if (table.DateFormat.empty()) {
        // text and tick lists must stay of equal length
        for (const TickLabel& label :
             TableTicks(table, {range.lower, range.upper}, mostLabels_())) {
            ticks.append(label.Position);
            labels.append(label.Visible ? QString::fromStdString(label.Text) : QString());
        }
    }
    if (tickLabels != nullptr) *tickLabels = labels;
}

}  // namespace brask
