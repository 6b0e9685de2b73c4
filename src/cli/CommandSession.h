// The data objects and settings of one command, with the command line's overrides in force. Nothing
// that an option overrides is ever stored.
#pragma once

#include <cstdint>
#include <string>

#include "cli/CommandLine.h"
#include "cli/Shell.h"
#include "data/DataFileLoader.h"
#include "data/DataSet.h"
#include "data/DiagnosticLog.h"
#include "data/StoredSettings.h"
#include "data/TemperatureUnit.h"

namespace brask {

class CommandSession {
  public:
    // Reads the settings; a file that is damaged or cannot be read is reported as a notice and in
    // the log.
    CommandSession(Shell& shell, const CommandLine& line);

    // Loads a data file; true when it was read to its end and holds readings. A relative path
    // counts from the working directory. The user interface has said why when it is false; what was
    // read until then is in Data().
    bool Load(const std::string& file);

    // Empty before the first Load.
    const DataSet& Data() const { return data_; }
    // Of the last Load.
    std::int64_t RejectedLines() const { return loader_.RejectedLines(); }
    // The option's unit, else the stored one.
    const TemperatureUnit& Unit() const { return unit_; }
    // The option's order, else the locale's.
    LongDateOrder DateOrder() const { return dateOrder_; }
    Settings& Options() { return settings_.Options(); }
    DiagnosticLog& Log() { return log_; }
    // Whether every setting could be stored so far.
    bool AllSettingsSaved() const { return allSaved_; }

  private:
    Files& disk_;
    DiagnosticLog log_;
    StoredSettings settings_;
    TemperatureUnit unit_;
    LongDateOrder dateOrder_;
    DataSet data_;
    DataFileLoader loader_;
    bool allSaved_ = true;
};

}  // namespace brask
