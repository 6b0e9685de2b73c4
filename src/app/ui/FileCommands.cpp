#include "app/ui/FileCommands.h"

#include "app/AppTexts.h"
#include "data/DataTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace app_texts;

FileCommands::FileCommands(const System& system, const FileCommandParts& parts, QWidget& window)
    : system_(system),
      parts_(parts),
      placing_(system.Disk, system.User, system.Words, system.Information),
      window_(window) {
    parts_.Registry.Register("mnuOpen", [this] { mnuOpen_Click(); });
    parts_.Registry.Register("mnuSaveDataFile", [this] { mnuSaveDataFile_Click(); });
    parts_.Registry.Register("mnuViewHeaders", [this] { mnuViewHeaders_Click(); });
}

void FileCommands::OpenFile(const QString& path) {
    // drops and recent files come here without a menu command around them, and need the guard too
    parts_.Registry.Guard("mnuOpen",
                          [&] { parts_.Shown.Open(FromQt(path), DataSource::kDiskFile); });
}

void FileCommands::mnuOpen_Click() {
    const auto path = parts_.Choose.FileToOpen(
        &window_, {ToQt(system_.Words, kOpenTitle), ToQt(system_.Words, kOpenFilter),
                   ToQt(parts_.Directories.DataRootDir()), QString()});
    // the guard within the guard of the command is harmless: the inner one ends what goes wrong
    if (path) OpenFile(*path);
}

void FileCommands::mnuSaveDataFile_Click() {
    if (parts_.Shown.Data().CurrentDataFile.empty()) {
        system_.User.ShowMessage({system_.Words.Find(data_texts::kProgramTitle),
                                  system_.Words.Find(data_texts::kNoDataToSave)});
        return;
    }
    // the suffix really is "bmp": a name typed without one has always been saved so
    const auto target = parts_.Choose.FileToSave(
        &window_, {ToQt(system_.Words, kSaveTitle), ToQt(system_.Words, kSaveFilter),
                   ToQt(parts_.Directories.DataRootDir()), QStringLiteral("bmp")});
    if (!target) return;
    if (placing_.SaveDataFile(parts_.Shown.Data(), FromQt(*target))) {
        system_.User.ShowNotice(system_.Words.Fill(kDataSaved, {FromQt(*target)}));
    }
}

void FileCommands::mnuViewHeaders_Click() {
    system_.User.ShowMessage(
        {system_.Words.Find(data_texts::kProgramTitle), parts_.Shown.HeadersText()});
}

}  // namespace brask
