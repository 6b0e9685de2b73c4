#include "data/StoredSettings.h"

#include <utility>

#include "data/DataTexts.h"
#include "platform/PlatformTexts.h"

namespace brask {
namespace {

// Users find the program's options under this name.
constexpr const char* kSection = "Brask Lite";

// The file to use; empty for the system's store.
std::string FileFor(const StoredSettings::Needs& needs, const std::string& path) {
    if (!path.empty()) return path;
    return needs.Stores.Place(kSection).empty() ? StoredSettings::UserPath(needs.Disk) : "";
}

}  // namespace

std::string StoredSettings::UserPath(const Files& files) {
    const std::string folder = files.Folder(KnownFolder::kSettings);
    if (folder.empty()) return "";
    const std::string separator(1, files.Separator());
    return folder + separator + "VEK" + separator + "Brask Lite.ini";
}

StoredSettings::StoredSettings(const Needs& needs, const std::string& path, SaveFailure failed)
    : needs_(needs),
      failed_(std::move(failed)),
      path_(FileFor(needs, path)),
      place_(path.empty() && path_.empty() ? needs.Stores.Place(kSection) : path_),
      file_(needs.Disk, path_,
            [this](const std::string& reason, const std::string& kept) {
                ReportDamage(reason, kept);
            }),
      known_(Section(kSection, kSection)),
      own_(Section(std::string(kSection) + " Window", "Window")),
      settings_(*known_, *own_, needs.Locale,
                [this](const std::string& key, const std::string& reason) {
                    const std::string line =
                        needs_.Words.Fill(data_texts::kSettingNotSaved, {key, place_, reason});
                    needs_.Log.WriteLog(line);
                    failed_(line);
                }) {
    // From here on damage is met by a save, and somebody is there to be told; before, whoever asks
    // Damage() is.
    opened_ = true;
}

std::unique_ptr<SettingsStore> StoredSettings::Section(const std::string& systemName,
                                                       const std::string& fileName) {
    if (path_.empty()) {
        if (auto store = needs_.Stores.Open(systemName)) return store;
    }
    return std::make_unique<IniSettingsStore>(file_, fileName);
}

void StoredSettings::ReportDamage(const std::string& reason, const std::string& kept) {
    const std::string line =
        kept.empty() ? needs_.Words.Fill(data_texts::kCannotRead, {path_, reason})
                     : needs_.Words.Fill(platform_texts::kSettingsSetAside, {path_, reason, kept});
    needs_.Log.WriteLog(line);
    if (opened_) {
        failed_(line);
    } else {
        damage_ = line;
    }
}

}  // namespace brask
