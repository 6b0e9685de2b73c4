// A whole load through the loader, as a shell without a terminal would run it.
#pragma once

#include <string>

#include "data/DataFileLoader.h"
#include "platform/console/ConsoleUserInterface.h"
#include "platform/posix/PosixFiles.h"
#include "platform/simulated/ManualClock.h"

namespace brask::bench {

class Loading {
  public:
    // Loads the file as the program does; the number of readings.
    std::int32_t Load(const std::string& path) {
        data_.CurrentDataFile = path;
        loader_.LoadDataFile({});
        return data_.ReadingCount;
    }
    const DataSet& Data() const { return data_; }

  private:
    PosixFiles files_;
    ManualClock clock_;
    ConsoleUserInterface user_{stderr, clock_, ConsoleOptions()};
    EnglishTexts texts_;
    DataSet data_;
    DiagnosticLog log_{files_, clock_};
    DataFileLoader loader_{data_, user_, texts_, files_, log_};
};

}  // namespace brask::bench
