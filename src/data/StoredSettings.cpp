#include "data/StoredSettings.h"

#include <utility>

#include "data/DataTexts.h"
#include "platform/PlatformTexts.h"

namespace brask {

std::string StoredSettings::UserPath(const Files& files) {
    const std::string folder = files.Folder(KnownFolder::kSettings);
    if (folder.empty()) return "";
    const std::string separator(1, files.Separator());
    return folder + separator + "VEK" + separator + "Brask Lite.ini";
}

StoredSettings::StoredSettings(const Needs& needs, const std::string& path, SaveFailure failed)
    : needs_(needs),
      failed_(std::move(failed)),
      path_(path.empty() ? UserPath(needs.Disk) : path),
      file_(needs.Disk, path_,
            [this](const std::string& reason, const std::string& kept) {
                ReportDamage(reason, kept);
            }),
      known_(file_, "Brask Lite"),
      own_(file_, "Window"),
      settings_(
          known_, own_, needs.Locale, [this](const std::string& key, const std::string& reason) {
              const std::string line =
                  needs_.Words.Fill(data_texts::kSettingNotSaved, {key, file_.Path(), reason});
              needs_.Log.WriteLog(line);
              failed_(line);
          }) {
    // From here on damage is met by a save, and somebody is there to be told; before, whoever asks
    // Damage() is.
    opened_ = true;
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
