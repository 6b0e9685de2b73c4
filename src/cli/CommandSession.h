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
#include "data/Settings.h"
#include "data/TemperatureUnit.h"
#include "platform/IniSettingsStore.h"

namespace brask {

class CommandSession {
  public:
    // Reads the settings; a file that is damaged or cannot be read is reported as a notice and in
    // the log.
    CommandSession(Shell& shell, const CommandLine& line);

    bool Load(const std::string& file);

    const DataSet& Data() const { return data_; }
    std::int64_t RejectedLines() const { return loader_.RejectedLines(); }
    const TemperatureUnit& Unit() const { return unit_; }
    LongDateOrder DateOrder() const { return dateOrder_; }
    Settings& Options() { return settings_; }
    // Whether every setting could be stored so far.
    bool AllSettingsSaved() const { return allSaved_; }

  private:
    void ReportDamage();

    Shell& shell_;
    DiagnosticLog log_;
    IniSettingsFile file_;
    IniSettingsStore known_;
    IniSettingsStore own_;
    Settings settings_;
    TemperatureUnit unit_;
    LongDateOrder dateOrder_;
    DataSet data_;
    DataFileLoader loader_;
    bool allSaved_ = true;
};

// The INI file that holds the user's own settings.
std::string UserSettingsPath(const Files& files);

}  // namespace brask
