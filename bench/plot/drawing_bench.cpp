// Drawing both curves of a large file at 1600 x 900: the program's own curves against the drawing
// library's graphs with their adaptive sampling, neither antialiased, and against an empty chart.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/plot/PlotInput.h"
#include "plot/ui/DynaPlot.h"

namespace brask::bench {
namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 900;

void Build(bool marked) {
    PlotOptions options = PlainOptions(GraphType::kContinuous);
    options.MarkDataPoints = marked;
    Input().builder.Rebuild(options);
}

// Two halves of the whole range that overlap by half: a pan to and fro.
struct Views {
    AxisRange Whole;

    AxisRange Pan(bool forth) const {
        const double width = Whole.Maximum - Whole.Minimum;
        const double begin = Whole.Minimum + (forth ? 0.25 : 0) * width;
        return {begin, begin + 0.5 * width};
    }
};

// The library's own graphs of the same readings in the same frame.
class StockPlot : public QCustomPlot {
  public:
    explicit StockPlot(const Chart& chart) {
        xAxis->setTicker(QSharedPointer<QCPAxisTickerDateTime>::create());
        yAxis2->setVisible(true);
        for (const Curve& curve : chart.Curves()) {
            const bool left = curve.Axis == ChartAxis::kLeft;
            auto* graph = addGraph(xAxis, left ? yAxis : yAxis2);
            QVector<QCPGraphData> points;
            points.reserve(static_cast<qsizetype>(curve.X.size()));
            for (std::size_t i = 0; i < curve.X.size(); ++i) {
                points.append({curve.X[i], curve.Y[i]});
            }
            graph->data()->set(points, true);
            graph->setAdaptiveSampling(true);
            graph->setAntialiased(false);
            const auto& range = chart.AxisOf(curve).Range();
            graph->valueAxis()->setRange(range.Minimum, range.Maximum);
        }
        Show(chart.X.Range());
    }
    void Show(const AxisRange& range) { xAxis->setRange(range.Minimum, range.Maximum); }
    QImage Picture() {
        QImage picture(kWidth, kHeight, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QCPPainter painter(&picture);
        toPainter(&painter, kWidth, kHeight);
        return picture;
    }
};

void Draw(benchmark::State& state, DynaPlot& plot) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(plot.Picture({kWidth, kHeight}));
    }
}

void DrawEmptyChart(benchmark::State& state) {
    const Chart chart;
    DynaPlot plot(chart, Input().locale);
    plot.ShowChart();
    Draw(state, plot);
}

// Frame and texts made anew each time; the pyramids are there.
void DrawFirst(benchmark::State& state) {
    Build(false);
    for ([[maybe_unused]] auto _ : state) {
        DynaPlot plot(Input().chart, Input().locale);
        plot.ShowChart();
        benchmark::DoNotOptimize(plot.Picture({kWidth, kHeight}));
    }
}

void DrawFirstWithMarkers(benchmark::State& state) {
    Build(true);
    DynaPlot plot(Input().chart, Input().locale);
    plot.ShowChart();
    Draw(state, plot);
}

void DrawAfterPan(benchmark::State& state) {
    Build(false);
    Chart& chart = Input().chart;
    const Views views{chart.X.Range()};
    DynaPlot plot(chart, Input().locale);
    bool forth = false;
    for ([[maybe_unused]] auto _ : state) {
        const AxisRange range = views.Pan(forth = !forth);
        chart.X.SetRange(range.Minimum, range.Maximum);
        plot.ShowChart();
        benchmark::DoNotOptimize(plot.Picture({kWidth, kHeight}));
    }
}

StockPlot& Stock() {
    Build(false);
    static StockPlot plot(Input().chart);
    return plot;
}

void DrawFirstStock(benchmark::State& state) {
    StockPlot& plot = Stock();
    plot.Show(Input().chart.X.Range());
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(plot.Picture());
}

void DrawAfterPanStock(benchmark::State& state) {
    StockPlot& plot = Stock();
    const Views views{Input().chart.X.Range()};
    bool forth = false;
    for ([[maybe_unused]] auto _ : state) {
        plot.Show(views.Pan(forth = !forth));
        benchmark::DoNotOptimize(plot.Picture());
    }
}

BENCHMARK(DrawEmptyChart)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawFirst)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawFirstWithMarkers)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawFirstStock)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawAfterPan)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawAfterPanStock)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brask::bench

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&count, arguments);
    const QApplication application(count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
