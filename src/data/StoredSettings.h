// The user's settings opened for one run: the system's own store or a file, its two sections, and
// the Settings on them.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "data/DiagnosticLog.h"
#include "data/Settings.h"
#include "platform/Files.h"
#include "platform/IniSettingsStore.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "platform/UserStores.h"

namespace brask {

class StoredSettings {
  public:
    // Told, after the log, what went wrong with a save: one line for the user.
    using SaveFailure = std::function<void(const std::string& line)>;

    // The system's parts that the settings need.
    struct Needs {
        Files& Disk;
        UserStores& Stores;
        const UserLocale& Locale;
        const Texts& Words;
        DiagnosticLog& Log;
    };

    // Opens the file at path. When the path is empty: the user's own store, which is a file at
    // UserPath where the system has none.
    StoredSettings(const Needs& needs, const std::string& path, SaveFailure failed);

    // Valid as long as this object.
    Settings& Options() { return settings_; }
    // One line for the user about a damaged file that was set aside, or one that cannot be read
    // (defaults then serve); empty when all is well. It is in the log already.
    const std::string& Damage() const { return damage_; }

    // The INI file that holds the user's own settings where the system has no store for them; empty
    // when no folder for it is known.
    static std::string UserPath(const Files& files);

  private:
    // The system's store of a section when no file was named, else the file's.
    std::unique_ptr<SettingsStore> Section(const std::string& systemName,
                                           const std::string& fileName);
    void ReportDamage(const std::string& reason, const std::string& kept);

    Needs needs_;
    SaveFailure failed_;
    // of the file; empty when the system's store serves
    std::string path_;
    // what messages call the one or the other
    std::string place_;
    std::string damage_;
    bool opened_ = false;
    IniSettingsFile file_;
    std::unique_ptr<SettingsStore> known_;
    std::unique_ptr<SettingsStore> own_;
    Settings settings_;
};

}  // namespace brask
