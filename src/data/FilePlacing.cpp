#include "data/FilePlacing.h"

#include <algorithm>

#include "data/DataTexts.h"

namespace brask {
namespace {

constexpr std::size_t kCopyBlock = 40000;

Status CopyWhole(Files& files, const std::string& source, const std::string& destination) {
    auto opened = files.Open(source);
    if (!opened.Ok()) return opened.Why();
    auto started = files.Replace(destination);
    if (!started.Ok()) return started.Why();
    return CopyAndCommit(*opened.Value(), *started.Value(), kCopyBlock);
}

// The move between file systems.
Status CopyAndRemove(Files& files, const std::string& source, const std::string& destination) {
    // the same file under two names: removing the source would remove the only copy
    if (files.SameFile(source, destination)) return {};
    Status copied = CopyWhole(files, source, destination);
    // The copy is on disk before the only other one goes.
    return copied.Ok() ? files.Remove(source) : copied;
}

}  // namespace

FilePlacing::FilePlacing(Files& files, UserInterface& user, const Texts& texts,
                         const SystemInformation& system)
    : files_(files), user_(user), texts_(texts), system_(system) {}

std::string FilePlacing::ReasonOf(const Error& error) const {
    return error.Number != 0 ? SystemErrorText(system_, texts_, error.Number) : error.Reason;
}

bool FilePlacing::PlaceReceivedFile(std::string source, std::string destination,
                                    const std::string& instrumentDirectory) {
    if (!destination.ends_with(".csv")) destination += ".csv";
    // A name may come out of a fixed buffer, with anything behind its NUL.
    source.erase(std::min(source.find('\0'), source.size()));
    // The rename comes first: it is one step, and it works in nearly all cases.
    if (files_.Move(source, destination).Ok()) return true;
    const Status moved = CopyAndRemove(files_, source, destination);
    if (moved.Ok()) return true;
    user_.ShowMessage(
        {texts_.Find(data_texts::kRenameFailureTitle),
         texts_.Fill(data_texts::kRenameFailure,
                     {source, destination, ReasonOf(moved.Why()), instrumentDirectory})});
    return false;
}

bool FilePlacing::MoveByCopy(const std::string& source, const std::string& destination) {
    return CopyAndRemove(files_, source, destination).Ok();
}

bool FilePlacing::SaveDataFile(const DataSet& data, const std::string& target) {
    const Status copied = files_.CopyToNew(data.CurrentDataFile, target);
    if (copied.Ok()) return true;
    user_.ShowMessage({texts_.Find(data_texts::kProgramTitle), ReasonOf(copied.Why())});
    return false;
}

}  // namespace brask
