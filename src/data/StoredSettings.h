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
    // Told, after the log, what went wrong with a save: one line for the user.
    using SaveFailure = std::function<void(const std::string& line)>;

    // The system's parts that the settings need.
    struct Needs {
        Files& Disk;
        const UserLocale& Locale;
        const Texts& Words;
        DiagnosticLog& Log;
    };

    // Opens the file at path, or the user's own when the path is empty.
    StoredSettings(const Needs& needs, const std::string& path, SaveFailure failed);

    // Valid as long as this object.
    Settings& Options() { return settings_; }
    // One line for the user about a damaged file that was set aside, or one that cannot be read
    // (defaults then serve); empty when all is well. It is in the log already.
    const std::string& Damage() const { return damage_; }

    // The INI file that holds the user's own settings; empty when no folder for it is known.
    static std::string UserPath(const Files& files);

  private:
    void ReportDamage(const std::string& reason, const std::string& kept);

    Needs needs_;
    SaveFailure failed_;
    std::string path_;
    std::string damage_;
    bool opened_ = false;
    IniSettingsFile file_;
    IniSettingsStore known_;
    IniSettingsStore own_;
    Settings settings_;
};

}  // namespace brask
