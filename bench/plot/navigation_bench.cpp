// Finding readings: what every movement of pointer and cursor costs, whatever the file holds.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "plot/CursorMoves.h"
#include "plot/PointSearch.h"
#include "plot/ReadingPlaces.h"

namespace brask::bench {
namespace {

constexpr double kFirstDay = 38051;
constexpr double kStep = 10.0 / 86400;  // a reading every ten seconds
constexpr PixelRect kAxes{60, 40, 1450, 780};

enum Kind { kForward, kTimesGoBack, kRising };

// Readings in memory: noise with a peak now and then, or a value that only rises. Times that go
// back do so by half an hour every 1000 readings.
struct Readings {
    Readings(std::size_t count, Kind kind) {
        Times.reserve(count);
        Values.reserve(count);
        std::uint32_t noise = 12345;
        for (std::size_t i = 0; i < count; ++i) {
            const auto number = static_cast<double>(i);
            const double back = kind == kTimesGoBack ? std::floor(number / 1000) / 48 : 0;
            Times.push_back(kFirstDay + number * kStep - back);
            noise = noise * 1664525 + 1013904223;
            const double value = noise % (i % 5000 == 0 ? 400 : 40);
            Values.push_back(kind == kRising ? number / 1000 : value);
        }
        Shown.X = Times;
        Shown.Y = Values;
        Shown.PyramidX = std::make_shared<const CurvePyramid>(Shown.X);
        Shown.PyramidY = std::make_shared<const CurvePyramid>(Shown.Y);
        Places = ReadingPlaces(Times, Shown.PyramidX);
    }
    AxisRange All() const {
        return {Shown.PyramidX->Whole().Minimum, Shown.PyramidX->Whole().Maximum};
    }
    AxisRange ValueAxis() const { return {-0.1, Shown.PyramidY->Whole().Maximum + 5}; }

    std::vector<double> Times;
    std::vector<double> Values;
    Curve Shown;
    ReadingPlaces Places;
};

// The readings of the benchmark's arguments: their number and kind. Kept, since benchmarks take
// turns.
const Readings& Input(const benchmark::State& state) {
    static std::map<std::pair<std::int64_t, std::int64_t>, std::unique_ptr<Readings>> known;
    auto& readings = known[{state.range(0), state.range(1)}];
    if (!readings) {
        readings = std::make_unique<Readings>(static_cast<std::size_t>(state.range(0)),
                                              static_cast<Kind>(state.range(1)));
    }
    return *readings;
}

// Places that lie all over, the same in every run.
class Scattered {
  public:
    double Next() {
        at_ = at_ + 0.6180339887498949;
        return at_ -= std::floor(at_);
    }

  private:
    double at_ = 0;
};

// A day in the middle of the data, or all of it.
AxisRange RangeInView(const Readings& readings, const benchmark::State& state) {
    const AxisRange all = readings.All();
    const double middle = (all.Minimum + all.Maximum) / 2;
    if (state.range(2) == 0) return all;
    return {std::max(all.Minimum, middle - 0.5), std::min(all.Maximum, middle + 0.5)};
}

void NearestPointInView(benchmark::State& state) {
    const Readings& readings = Input(state);
    const PixelView view(kAxes, RangeInView(readings, state), readings.ValueAxis());
    Scattered places;
    for ([[maybe_unused]] auto _ : state) {
        const PixelPoint place{kAxes.Left + kAxes.Width * places.Next(),
                               kAxes.Top + kAxes.Height * places.Next()};
        benchmark::DoNotOptimize(NearestInView(readings.Shown, view, place, 1e9));
    }
}

// Up: to the highest reading in view.
void HighestInView(benchmark::State& state) {
    const Readings& readings = Input(state);
    const AxisRange x = RangeInView(readings, state);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(ExtremeWithin(readings.Shown, x, true));
    }
}

// One reading on, and back by a tenth of those in view.
void NextReading(benchmark::State& state) {
    const Readings& readings = Input(state);
    const AxisRange x = RangeInView(readings, state);
    std::size_t at = readings.Times.size() / 2;
    for ([[maybe_unused]] auto _ : state) {
        at = SteppedPoint(readings.Shown, at, 1);
        at = SteppedPoint(readings.Shown, at, -FastCursorStep(readings.Shown, x));
        benchmark::DoNotOptimize(at);
        if (at < readings.Times.size() / 4) at = readings.Times.size() / 2;
    }
}

void ReadingAtTime(benchmark::State& state) {
    const Readings& readings = Input(state);
    const AxisRange all = readings.All();
    Scattered places;
    for ([[maybe_unused]] auto _ : state) {
        const double time = all.Minimum + (all.Maximum - all.Minimum) * places.Next();
        benchmark::DoNotOptimize(readings.Places.NearestReading(time));
    }
}

void WithViews(benchmark::internal::Benchmark* one) {
    one->ArgNames({"readings", "kind", "day"})->Unit(benchmark::kMicrosecond);
    one->ArgsProduct({{100'000, 1'000'000, 10'000'000}, {kForward, kTimesGoBack, kRising}, {0, 1}});
}

BENCHMARK(NearestPointInView)->Apply(WithViews);
BENCHMARK(HighestInView)->Apply(WithViews);
BENCHMARK(NextReading)->Apply(WithViews);
BENCHMARK(ReadingAtTime)
    ->ArgNames({"readings", "kind"})
    ->Unit(benchmark::kMicrosecond)
    ->ArgsProduct({{100'000, 1'000'000, 10'000'000}, {kForward, kTimesGoBack}});

}  // namespace
}  // namespace brask::bench

BENCHMARK_MAIN();
