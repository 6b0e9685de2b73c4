#include "handheld/SyncSoftware.h"

#include "data/DataTexts.h"
#include "handheld/HandheldTexts.h"

namespace brask {

bool SyncSoftwareInstalled(const Files& files) {
    // other systems have no such directory, and there the answer is no
    return files.IsDirectory("c:\\program files\\Microsoft activesync");
}

bool ConfirmSyncSoftware(const Files& files, Settings& settings, UserInterface& user,
                         const Texts& texts) {
    if (settings.Get("AskedActiveSync") != "XX") return true;
    const std::string title = texts.Find(data_texts::kProgramTitle);
    if (!SyncSoftwareInstalled(files) &&
        !user.AskYesNo({title, texts.Find(handheld_texts::kIsSyncInstalled)})) {
        user.ShowMessage({title, texts.Find(handheld_texts::kInstallSync)});
        return false;
    }
    settings.Save("AskedActiveSync", "OK");
    return true;
}

}  // namespace brask
