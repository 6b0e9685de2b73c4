#include "plot/PeriodGrouping.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

#include "data/DateTime.h"

namespace brask {
namespace {

constexpr double kHalfSecond = 0.5 / kSecondsPerDay;

// The day that a time stamp is shown under: stamps are shown to the nearest second.
std::int64_t ShownDay(double time) { return DaysFromCivil(CivilFromSerial(time).Date); }

// Remembers the last day met, so that a reading usually costs two comparisons.
class DayCursor {
  public:
    // True when the reading lies on another day than the one before.
    bool MoveTo(double time) {
        if (time >= begin_ && time < end_) return false;
        const std::int64_t day = ShownDay(time);
        const bool changed = day != day_;
        day_ = day;
        start_ = static_cast<double>(day);
        begin_ = start_;
        end_ = start_ + 1 - kHalfSecond;
        return changed;
    }
    std::int64_t Day() const { return day_; }
    // Fraction of the day, 0 to below 1.
    double TimeOfDay(double time) const {
        const double fraction = time - start_;
        // A stamp in a day's last half second is shown as the next midnight and lies before the day
        // that it counts to; one beyond the calendar's ends lies outside its day too.
        return fraction >= 0 && fraction < 1 ? fraction : 0;
    }

  private:
    std::int64_t day_ = INT64_MIN;
    double start_ = 0;
    double begin_ = 0;
    double end_ = 0;  // begin_ == end_: no day yet
};

int DayOffset(std::int64_t day, int startWeekOn) {
    const int firstDay = startWeekOn == 0 ? 1 : 2;
    return (DayOfWeek(day) - firstDay + 7) % 7;
}

// Numbers the short dates: two days can share one text where the year has two digits.
class ShortDates {
  public:
    explicit ShortDates(const UserLocale& locale) : locale_(locale) {}

    // Asked once per run of readings: writing a date in the system's form is far slower than
    // comparing serials.
    std::size_t NumberOf(std::int64_t day) {
        const auto known = ofDay_.find(day);
        if (known != ofDay_.end()) return known->second;
        const std::string text = locale_.ShortDate(CivilFromDays(day));
        const std::size_t number = ofText_.try_emplace(text, ofText_.size()).first->second;
        ofDay_.emplace(day, number);
        return number;
    }

  private:
    const UserLocale& locale_;
    std::unordered_map<std::int64_t, std::size_t> ofDay_;
    std::unordered_map<std::string, std::size_t> ofText_;
};

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// Readings of one date that follow one another, and where that date goes on.
struct DateRun {
    ReadingRun Run;
    std::size_t NextOfDate = kNone;
};

class DateRuns {
  public:
    explicit DateRuns(const UserLocale& locale) : dates_(locale) {}

    void Begin(std::int32_t reading, std::int64_t day) {
        End(reading);
        const std::size_t date = dates_.NumberOf(day);
        if (date >= last_.size()) last_.resize(date + 1, kNone);
        if (last_[date] != kNone) runs_[last_[date]].NextOfDate = runs_.size();
        last_[date] = runs_.size();
        runs_.push_back({{reading, 0}, kNone});
    }
    void End(std::int32_t reading) {
        if (!runs_.empty()) runs_.back().Run.Count = reading - runs_.back().Run.First;
    }
    const std::vector<DateRun>& Runs() const { return runs_; }

  private:
    ShortDates dates_;
    std::vector<DateRun> runs_;
    std::vector<std::size_t> last_;  // newest run of each date
};

// Takes the periods out of the chains of runs. Each reading of a period moves the next start by
// one, so all periods together visit at most twice as many as there are.
void CollectDays(const std::vector<DateRun>& runs, std::int32_t readings, PeriodGrouping& result) {
    std::int64_t next = 0;
    std::size_t at = 0;
    while (next < readings) {
        // `next` only grows, so this walks over the runs once in all
        while (runs[at].Run.First + runs[at].Run.Count <= next) ++at;
        PeriodGrouping::Period period{result.Runs.size(), 0};
        const auto start = static_cast<std::int32_t>(next);
        for (std::size_t i = at; i != kNone; i = runs[i].NextOfDate) {
            ReadingRun run = runs[i].Run;
            // a period may start in the middle of a run, after earlier ones took readings of other
            // runs
            if (i == at) run = {start, run.First + run.Count - start};
            result.Runs.push_back(run);
            next += run.Count;
        }
        period.RunCount = result.Runs.size() - period.FirstRun;
        result.Periods.push_back(period);
    }
}

}  // namespace

PeriodGrouping GroupByDay(std::span<const double> times, const UserLocale& locale) {
    auto hours = std::make_shared<std::vector<double>>();
    hours->reserve(times.size());
    DateRuns runs(locale);
    DayCursor cursor;
    for (std::size_t i = 0; i < times.size(); ++i) {
        if (cursor.MoveTo(times[i])) runs.Begin(static_cast<std::int32_t>(i), cursor.Day());
        hours->push_back(cursor.TimeOfDay(times[i]) * 24.0);
    }
    const auto readings = static_cast<std::int32_t>(times.size());
    runs.End(readings);

    PeriodGrouping result;
    CollectDays(runs.Runs(), readings, result);
    result.X = std::move(hours);
    return result;
}

PeriodGrouping GroupByWeek(std::span<const double> times, int startWeekOn) {
    PeriodGrouping result;
    auto days = std::make_shared<std::vector<double>>();
    days->reserve(times.size());
    DayCursor cursor;
    double offset = 0;
    std::int64_t weekEnd = INT64_MIN;
    for (std::size_t i = 0; i < times.size(); ++i) {
        if (cursor.MoveTo(times[i])) {
            // days within a week follow the reading's own date, even when it lies in an earlier
            // week: the curve then runs back and forth, and shows that the clock did
            offset = DayOffset(cursor.Day(), startWeekOn);
            // only forward: a clock that was set back does not begin a week that has been before
            if (cursor.Day() >= weekEnd) {
                weekEnd = cursor.Day() - static_cast<std::int64_t>(offset) + 7;
                result.Periods.push_back({result.Runs.size(), 1});
                result.Runs.push_back({static_cast<std::int32_t>(i), 0});
            }
        }
        days->push_back(offset + cursor.TimeOfDay(times[i]));
    }
    for (std::size_t i = 0; i < result.Runs.size(); ++i) {
        const auto end = i + 1 < result.Runs.size() ? result.Runs[i + 1].First
                                                    : static_cast<std::int32_t>(times.size());
        result.Runs[i].Count = end - result.Runs[i].First;
    }
    result.X = std::move(days);
    return result;
}

}  // namespace brask
