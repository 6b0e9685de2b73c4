// A step of panning, of zooming by the wheel and of the cursor in the program's whole window, from
// the sent event to the painted frame; the plot is 1600 x 900, the argument the number of readings.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>
#include <map>
#include <random>

#include "app/ui/frmBraskLite.h"
#include "platform/qt/ScriptedChoosers.h"
#include "platform/simulated/FixedSystemInformation.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/ManualClock.h"
#include "platform/simulated/MemoryFiles.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask::bench {
namespace {

constexpr QSize kPlotSize(1600, 900);
constexpr double kSerialOf2003 = 37622.0;
constexpr double kIntervalDays = 10.0 / 86400.0;
// As many readings as a close view shows, whatever lies beside it.
constexpr double kCloseReadings = 20000;

// A reading every ten seconds: slow waves, noise on them, a spike now and then.
void Fill(DataSet& data, std::int32_t count) {
    data.Recreate(static_cast<std::size_t>(count));
    std::minstd_rand random(1);
    std::uniform_real_distribution<double> noise(0, 1);
    for (std::int32_t i = 0; i < count; ++i) {
        ++data.ReadingCount;
        data.EnsureReadingCapacity();
        const auto at = static_cast<std::size_t>(i);
        data.ReadingTime[at] = kSerialOf2003 + i * kIntervalDays;
        data.GasPpm[at] = noise(random) * (i % 50021 == 0 ? 90 : 8);
        data.Temperature[at] = 20 + 4 * std::sin(i / 1000.0) + noise(random);
    }
}

// The window on fakes, with its plot at the size of the measurement, and events for the plot.
class Bench : public QObject {
  public:
    explicit Bench(std::int32_t readings) {
        Fill(data_, readings);
        window_.FormLoad();
        window_.show();
        window_.Registry().SetHasReadings(true);
        window_.Registry().Run("mnuRefresh");
        plot_ = window_.findChild<DynaPlot*>();
        QCoreApplication::processEvents();
        // what stands around the plot keeps its size
        window_.resize(window_.size() + kPlotSize - plot_->size());
        QCoreApplication::processEvents();
        plot_->setFocus();
        plot_->installEventFilter(this);
        whole_ = chart_.X.Range();
    }
    bool HasSize() const { return plot_->size() == kPlotSize; }

    // The middle of the data, so wide that many or few readings are in view.
    void ShowHalf() { Show((whole_.Maximum - whole_.Minimum) / 4); }
    void ShowClose() { Show(kCloseReadings * kIntervalDays / 2); }

    QPointF Middle() const { return QRectF(plot_->axisRect()->rect()).center(); }
    void Mouse(QEvent::Type type, const QPointF& at) {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, plot_->mapToGlobal(at), moves ? Qt::NoButton : Qt::MiddleButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MiddleButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(plot_, &event);
    }
    void Wheel(int angle) {
        QWheelEvent event(Middle(), plot_->mapToGlobal(Middle()), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        event.setTimestamp(time_ += 16);
        QCoreApplication::sendEvent(plot_, &event);
    }
    void Key(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(plot_, &event);
    }
    // Until the frame that the event has brought about is on the screen.
    void WaitForFrame() {
        painted_ = false;
        while (!painted_) QCoreApplication::processEvents();
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

  private:
    void Show(double halfSpan) {
        navigation_.Restore();
        const double middle = (whole_.Minimum + whole_.Maximum) / 2;
        navigation_.ShowXRange({middle - halfSpan, middle + halfSpan});
        WaitForFrame();
    }

    ScriptedUserInterface user_;
    ScriptedChoosers choosers_;
    MemoryFiles disk_;
    MemorySettingsStore store_;
    MemorySettingsStore ownStore_;
    EnglishTexts texts_;
    FixedUserLocale locale_;
    FixedSystemInformation information_;
    ManualClock clock_;
    DataSet data_;
    TemperatureUnit unit_;
    DiagnosticLog log_{disk_, clock_};
    Settings options_{store_, ownStore_, locale_, [](const auto&, const auto&) {}};
    DataDirectories directories_{disk_, user_, texts_};
    DataFileLoader loader_{data_, user_, texts_, disk_, log_};
    Chart chart_;
    PlotBuilder builder_{chart_, data_, locale_, texts_};
    ChartActions actions_{chart_, texts_};
    PlotNavigation navigation_{{chart_, actions_, options_, user_, texts_}};
    PointSelection selection_{{chart_, builder_, data_, unit_, locale_, texts_}};
    DisplayPeriod period_{LongDateOrder::kMonthDayYear, texts_};
    frmBraskLite window_{
        System{user_, texts_, disk_, locale_, information_, clock_},
        Session{data_, loader_, unit_, LongDateOrder::kMonthDayYear, directories_, options_, log_},
        Plotting{chart_, builder_, actions_, navigation_, selection_, period_}, choosers_};
    DynaPlot* plot_ = nullptr;
    AxisRange whole_;
    quint64 time_ = 1000;
    bool painted_ = false;
};

// One for each number of readings: the runs of different benchmarks take turns.
std::map<std::int64_t, Bench>& All() {
    static std::map<std::int64_t, Bench> all;
    return all;
}

Bench& Of(benchmark::State& state, const char* target) {
    state.SetLabel(target);
    const std::int64_t readings = state.range(0);
    Bench& bench = All().try_emplace(readings, static_cast<std::int32_t>(readings)).first->second;
    if (!bench.HasSize()) state.SkipWithError("the plot has not the size of the measurement");
    return bench;
}

using View = void (Bench::*)();

// To and fro by a sixteenth of the plot's width, with the middle button.
void Pan(benchmark::State& state, View view) {
    Bench& bench = Of(state, "at most 16 ms");
    (bench.*view)();
    bench.Mouse(QEvent::MouseButtonPress, bench.Middle());
    bool forth = false;
    for ([[maybe_unused]] auto _ : state) {
        forth = !forth;
        bench.Mouse(QEvent::MouseMove, bench.Middle() + QPointF(forth ? 100 : 0, 0));
        bench.WaitForFrame();
    }
    bench.Mouse(QEvent::MouseButtonRelease, bench.Middle());
}

void Zoom(benchmark::State& state, View view) {
    Bench& bench = Of(state, "at most 16 ms");
    (bench.*view)();
    bool in = false;
    for ([[maybe_unused]] auto _ : state) {
        in = !in;
        bench.Wheel(in ? 120 : -120);
        bench.WaitForFrame();
    }
}

void Cursor(benchmark::State& state, View view) {
    Bench& bench = Of(state, "at most 4 ms");
    (bench.*view)();
    bench.Key(Qt::Key_Right);
    bench.WaitForFrame();
    bool right = false;
    for ([[maybe_unused]] auto _ : state) {
        right = !right;
        bench.Key(right ? Qt::Key_Right : Qt::Key_Left);
        bench.WaitForFrame();
    }
}

void PanStep(benchmark::State& state) { Pan(state, &Bench::ShowHalf); }
void PanStepClose(benchmark::State& state) { Pan(state, &Bench::ShowClose); }
void WheelStep(benchmark::State& state) { Zoom(state, &Bench::ShowHalf); }
void WheelStepClose(benchmark::State& state) { Zoom(state, &Bench::ShowClose); }
void CursorStep(benchmark::State& state) { Cursor(state, &Bench::ShowHalf); }
void CursorStepClose(benchmark::State& state) { Cursor(state, &Bench::ShowClose); }

void Sizes(benchmark::internal::Benchmark* one) {
    one->Arg(100000)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond);
}
BENCHMARK(PanStep)->Apply(Sizes);
BENCHMARK(PanStepClose)->Apply(Sizes);
BENCHMARK(WheelStep)->Apply(Sizes);
BENCHMARK(WheelStepClose)->Apply(Sizes);
BENCHMARK(CursorStep)->Apply(Sizes);
BENCHMARK(CursorStepClose)->Apply(Sizes);

}  // namespace
}  // namespace brask::bench

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&count, arguments);
    const QApplication application(count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    // no window may outlive the application
    brask::bench::All().clear();
}
