// The loaded readings: three parallel arrays in file order, and what the file says about the
// instrument. One exists for the whole run; each load replaces its readings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace brask {

// Where the current data came from.
enum class DataSource : std::int16_t { kDiskFile = 0, kHandheld = 1, kInstrument = 2 };

// The arrays are public because curves share them: a curve is a span of them, and a load that
// re-creates them must not begin before the curves are gone.
struct DataSet {
    // Slots that every load starts with, 0 to 110000.
    static constexpr std::int32_t kFirstHighestSlot = 110000;

    std::int32_t ReadingCount = 0;    // valid readings; 0 when no data is loaded
    std::vector<double> ReadingTime;  // serials, see DateTime.h
    std::vector<double> GasPpm;       // ppm, as written in the file
    std::vector<double> Temperature;  // in the unit of TemperatureUnit

    // Single-byte texts, trimmed. A load overwrites only those whose line it meets.
    std::string InstrumentName;
    std::string InstrumentSerialNumber;
    std::string InstrumentDate;
    std::string InstrumentGas;

    std::string CurrentDataFile;  // full path, native, UTF-8; empty when nothing was loaded
    DataSource Source = DataSource::kDiskFile;

    // Empty arrays of 110,001 slots; address space for `expected` readings is set aside, so that
    // growing up to there moves nothing. The header texts stay. An estimate that is too small costs
    // time, never correctness.
    void Recreate(std::size_t expected);
    // Called with ReadingCount already counted up: when its slot lies beyond the highest one, the
    // arrays grow to slots 0 to ReadingCount + 500, keeping their contents.
    void EnsureReadingCapacity() {
        if (ReadingCount - 1 > HighestSlot()) Grow();
    }
    // -1 before the first Recreate.
    std::int32_t HighestSlot() const { return static_cast<std::int32_t>(ReadingTime.size()) - 1; }

    // The readings, without the spare slots. Valid until the arrays grow or are re-created.
    std::span<const double> Times() const { return Used(ReadingTime); }
    std::span<const double> Gas() const { return Used(GasPpm); }
    std::span<const double> Temperatures() const { return Used(Temperature); }

  private:
    void Grow();
    std::span<const double> Used(const std::vector<double>& values) const {
        return {values.data(), static_cast<std::size_t>(ReadingCount)};
    }
};

}  // namespace brask
