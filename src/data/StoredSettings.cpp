#include "data/StoredSettings.h"

#include <utility>

#include "data/DataTexts.h"
#include "platform/PlatformTexts.h"

namespace brask {

std::string StoredSettings::UserPath(const Files& files) {
    const std::string separator(1, files.Separator());
    return files.Folder(KnownFolder::kSettings) + separator + "VEK" + separator + "Brask Lite.ini";
}

StoredSettings::StoredSettings(const Needs& needs, const std::string& path, SaveFailure failed)
    : needs_(needs),
      file_(needs.Disk, path.empty() ? UserPath(needs.Disk) : path),
      known_(file_, "Brask Lite"),
      own_(file_, "Window"),
      settings_(
          known_, own_, needs.Locale,
          [this, failed = std::move(failed)](const std::string& key, const std::string& reason) {
              const std::string line =
                  needs_.Words.Fill(data_texts::kSettingNotSaved, {key, reason});
              needs_.Log.WriteLog(line);
              failed(line);
          }),
      damage_(file_.Damage().empty() ? "" : DamageText()) {
    if (!damage_.empty()) needs_.Log.WriteLog(damage_);
}

std::string StoredSettings::DamageText() const {
    // what could not even be read was left where it is
    const bool setAside = !needs_.Disk.Exists(file_.Path());
    return setAside ? needs_.Words.Fill(platform_texts::kSettingsSetAside,
                                        {file_.Path(), file_.Damage(), file_.Path() + ".bad"})
                    : needs_.Words.Fill(data_texts::kCannotRead, {file_.Path(), file_.Damage()});
}

}  // namespace brask
