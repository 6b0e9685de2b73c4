#include "data/FilePlacing.h"

#include "data/DataTexts.h"

namespace brask {
namespace {

constexpr std::size_t kCopyBlock = 40000;

Status CopyWhole(Files& files, const std::string& source, const std::string& destination) {
    auto opened = files.Open(source);
    if (!opened.Ok()) return opened.Why();
    auto started = files.Replace(destination);
    if (!started.Ok()) return started.Why();
    std::string block(kCopyBlock, '\0');
    for (;;) {
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) return started.Value()->Commit();
        Status written = started.Value()->Write({block.data(), read.Value()});
        if (!written.Ok()) return written;
    }
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
    source.erase(std::min(source.find('\0'), source.size()));
    if (files_.Move(source, destination).Ok() || MoveByCopy(source, destination)) return true;
    user_.ShowMessage(
        {texts_.Find(data_texts::kRenameFailureTitle),
         texts_.Fill(data_texts::kRenameFailure,
                     {source, destination, ReasonOf(lastError_), instrumentDirectory})});
    return false;
}

bool FilePlacing::MoveByCopy(const std::string& source, const std::string& destination) {
    // already in its place: removing the source would remove the only copy
    if (files_.Absolute(source) == files_.Absolute(destination)) return files_.Exists(source);
    const Status copied = CopyWhole(files_, source, destination);
    const Status removed = copied.Ok() ? files_.Remove(source) : copied;
    if (!removed.Ok()) lastError_ = removed.Why();
    return removed.Ok();
}

bool FilePlacing::SaveDataFile(const DataSet& data, const std::string& target) {
    const Status copied = files_.CopyToNew(data.CurrentDataFile, target);
    if (copied.Ok()) return true;
    user_.ShowMessage({texts_.Find(data_texts::kProgramTitle), ReasonOf(copied.Why())});
    return false;
}

}  // namespace brask
