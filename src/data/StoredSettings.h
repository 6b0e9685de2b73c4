// The user's settings file opened for one run: the file, its two sections, and the Settings on it.
#pragma once

#include <functional>
#include <string>

#include "data/DiagnosticLog.h"
#include "data/Settings.h"
#include "platform/Files.h"
#include "platform/IniSettingsStore.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"

namespace brask {

class StoredSettings {
  public:
    // Told, after the log, of what went wrong with the file: one line for the user.
    using TroubleReport = std::function<void(const std::string& line)>;

    // The system's parts that the settings need.
    struct Needs {
        Files& Disk;
        const UserLocale& Locale;
        const Texts& Words;
        DiagnosticLog& Log;
    };

    // Opens the file at path, or the user's own when the path is empty. A damaged file that was set
    // aside and one that cannot be read are reported; defaults then serve.
    StoredSettings(const Needs& needs, const std::string& path, TroubleReport report);

    Settings& Options() { return settings_; }
    const std::string& Path() const { return file_.Path(); }

    // The INI file that holds the user's own settings.
    static std::string UserPath(const Files& files);

  private:
    void Report(const std::string& line);
    void ReportDamage();

    Needs needs_;
    TroubleReport report_;
    IniSettingsFile file_;
    IniSettingsStore known_;
    IniSettingsStore own_;
    Settings settings_;
};

}  // namespace brask
