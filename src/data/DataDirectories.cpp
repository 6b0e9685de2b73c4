#include "data/DataDirectories.h"

#include <algorithm>

#include "data/DataTexts.h"

namespace brask {
namespace {

// Settings may have been written on another system: "\" and "/" both part a path.
std::string NativePath(std::string path, char separator) {
    if (separator == '/') std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

// On a system without drives "c:\data" would become a folder of that odd name in whatever directory
// the program happens to run in.
bool NamesDrive(const std::string& path) {
    return path.size() >= 2 && path[1] == ':' &&
           ((path[0] | 0x20) >= 'a' && (path[0] | 0x20) <= 'z');
}

}  // namespace

DataDirectories::DataDirectories(Files& files, UserInterface& user, const Texts& texts)
    : files_(files), user_(user), texts_(texts) {}

std::string DataDirectories::SystemBase(const Settings& settings, WindowsKind kind) const {
    if (!overriddenBase_.empty()) return overriddenBase_;
    // Older systems have no documents folder of all users that everybody may write to.
    const bool shared = settings.IsYes("DataAccessIsGlobal") && kind == WindowsKind::kNt5;
    const std::string documents =
        files_.Folder(shared ? KnownFolder::kSharedDocuments : KnownFolder::kUserDocuments);
    return documents.empty() ? files_.Folder(KnownFolder::kDocumentsMissing) : documents;
}

std::string DataDirectories::Base(const Settings& settings, WindowsKind kind) const {
    if (!overriddenBase_.empty() || !settings.IsYes("UserSpecifiedDirectoryActive")) {
        return SystemBase(settings, kind);
    }
    std::string chosen = settings.Get("UserSpecDir");
    // chosen but never named: the folder that such installations have always used
    if (chosen.empty()) chosen = "c:\\my documents";
    if (files_.Separator() == '/' && NamesDrive(chosen)) {
        std::string base = SystemBase(settings, kind);
        user_.ShowNotice(texts_.Fill(data_texts::kDriveLetterElsewhere, {chosen, base}));
        return base;
    }
    return NativePath(chosen, files_.Separator());
}

void DataDirectories::ResolveDataDirectories(const Settings& settings, WindowsKind kind) {
    const std::string separator(1, files_.Separator());
    std::string base = Base(settings, kind);
    // the user may or may not have typed a separator at the end
    while (!base.empty() && base.back() == files_.Separator()) base.pop_back();
    dataRootDir_ = base + separator + "VEK" + separator;
    EnsureDirectory(dataRootDir_);
    pocketPcDir_ = dataRootDir_ + "From PocketPC" + separator;
    EnsureDirectory(pocketPcDir_);
    instrumentDir_ = dataRootDir_ + "From TalvexK42" + separator;
    EnsureDirectory(instrumentDir_);
}

void DataDirectories::EnsureDirectory(const std::string& path) {
    std::string directory = path;
    if (!directory.empty() && directory.back() == files_.Separator()) directory.pop_back();
    if (files_.MakeDirectoryChain(directory).Ok()) return;
    // a chain can fail at a parent that cannot be looked into, though the last step would work
    if (!files_.IsDirectory(directory)) static_cast<void>(files_.MakeDirectory(directory).Ok());
    if (files_.IsDirectory(directory)) return;
    user_.ShowMessage({texts_.Find(data_texts::kProgramTitle),
                       texts_.Fill(data_texts::kCannotCreateDirectory, {directory})});
}

}  // namespace brask
