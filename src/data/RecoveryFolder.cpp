#include "data/RecoveryFolder.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include "data/DateTime.h"
#include "data/FileNames.h"

namespace brask {
namespace {

// Room for tens of thousands of entries; a larger one is no index of ours.
constexpr std::size_t kLargestIndex = std::size_t{16} * 1024 * 1024;
constexpr std::size_t kCopyBlock = std::size_t{64} * 1024;
constexpr int kMostNamesTried = 10000;

// Sorts by time where files are listed by name.
std::string DateInName(const CivilDateTime& time) {
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d-%02d-%02d ", time.Date.Year,
                  time.Date.Month, time.Date.Day, time.Hour, time.Minute, time.Second);
    return text;
}

}  // namespace

RecoveryFolder::RecoveryFolder(Files& files, const Clock& clock, const DataDirectories& directories)
    : files_(files), clock_(clock), directories_(directories) {}

std::string RecoveryFolder::Path() const { return directories_.DataRootDir() + ".recovery"; }

std::string RecoveryFolder::PathOf(const std::string& name) const {
    return Path() + files_.Separator() + name;
}

Result<std::unique_ptr<FileLock>> RecoveryFolder::Lock() {
    return files_.Lock(PathOf("index.txt.lock"));
}

Result<RecoveryIndex> RecoveryFolder::ReadIndex() const {
    const auto content = ReadWholeFile(files_, PathOf("index.txt"), kLargestIndex);
    if (content.Ok()) return RecoveryIndex::Parse(content.Value());
    if (content.Why().Number == ENOENT) return RecoveryIndex();
    return content.Why();
}

Result<std::string> RecoveryFolder::ClaimName(const std::string& name) {
    if (Status made = files_.MakeDirectoryChain(Path()); !made.Ok()) return made.Why();
    const auto lock = Lock();
    if (!lock.Ok()) return lock.Why();
    const std::string dated = SafeFileName(DateInName(clock_.Now()) + name);
    const auto stop = dated.rfind('.');
    for (int number = 1; number <= kMostNamesTried; ++number) {
        std::string free = dated;
        if (number > 1) {
            const std::string ending = " (" + std::to_string(number) + ")" +
                                       (stop == std::string::npos ? "" : dated.substr(stop));
            free = SafeFileName(dated.substr(0, stop), ending);
        }
        if (files_.Exists(PathOf(free))) continue;
        // Another program that looks for a name now sees this one taken, long before the bytes
        // of a slow link have come.
        if (Status taken = files_.Append(PathOf(free), ""); !taken.Ok()) return taken.Why();
        return free;
    }
    return Error{EEXIST, "no free name for " + dated};
}

Result<std::unique_ptr<RecoveryFolder::Entry>> RecoveryFolder::BeginEntry(KeptFile file,
                                                                          const std::string& name) {
    auto claimed = ClaimName(name);
    if (!claimed.Ok()) return claimed.Why();
    file.Name = std::move(claimed.Value());
    file.Date = FormatReadingTime(clock_.Now());
    auto target = files_.Replace(PathOf(file.Name));
    if (!target.Ok()) {
        static_cast<void>(files_.Remove(PathOf(file.Name)).Ok());
        return target.Why();
    }
    return std::make_unique<Entry>(*this, std::move(file), std::move(target.Value()));
}

Result<std::unique_ptr<RecoveryFolder::Entry>> RecoveryFolder::Begin(KeptKind kind,
                                                                     const std::string& name,
                                                                     const std::string& origin) {
    KeptFile file;
    file.Kind = kind;
    file.Origin = origin;
    return BeginEntry(std::move(file), name);
}

RecoveryFolder::Entry::Entry(RecoveryFolder& folder, KeptFile file,
                             std::unique_ptr<ReplacementFile> target)
    : folder_(folder), file_(std::move(file)), target_(std::move(target)) {}

RecoveryFolder::Entry::~Entry() {
    target_.reset();
    if (!kept_) static_cast<void>(folder_.files_.Remove(folder_.PathOf(file_.Name)).Ok());
}

Status RecoveryFolder::Entry::Write(std::string_view bytes) {
    sum_.Add(bytes);
    file_.Bytes += bytes.size();
    return target_->Write(bytes);
}

Result<std::string> RecoveryFolder::Entry::Keep() {
    // bytes before description: a crash between the two leaves a file without a line, never a line
    // that promises bytes which are not there
    if (Status placed = target_->Commit(); !placed.Ok()) return placed.Why();
    file_.Sha256 = sum_.Hex();
    if (Status described = folder_.Describe(file_); !described.Ok()) return described.Why();
    kept_ = true;
    return folder_.PathOf(file_.Name);
}

Status RecoveryFolder::Describe(const KeptFile& file) {
    const auto lock = Lock();
    if (!lock.Ok()) return lock.Why();
    auto index = ReadIndex();
    if (!index.Ok()) return index.Why();
    index.Value().Add(file);
    const auto surplus = index.Value().DropOldStreams(kKeptStreams);
    Status written = WriteWholeFile(files_, PathOf("index.txt"), index.Value().Text());
    if (!written.Ok()) return written;
    // Only when the newest is safe; a stream that cannot be removed does no harm.
    for (const std::string& name : surplus) {
        // the index may have been edited by hand: nothing outside the folder is ever removed
        if (name == BaseName(files_, name)) static_cast<void>(files_.Remove(PathOf(name)).Ok());
    }
    return {};
}

Result<std::string> RecoveryFolder::KeepCopy(KeptFile file, const std::string& source) {
    auto opened = files_.Open(source);
    if (!opened.Ok()) return opened.Why();
    const bool stream = file.Kind == KeptKind::kStream;
    file.Origin = files_.Absolute(source);
    auto entry = BeginEntry(std::move(file), stream ? "received.raw" : BaseName(files_, source));
    if (!entry.Ok()) return entry.Why();
    std::string block(kCopyBlock, '\0');
    for (;;) {
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) return entry.Value()->Keep();
        Status written = entry.Value()->Write({block.data(), read.Value()});
        if (!written.Ok()) return written.Why();
    }
}

Result<std::string> RecoveryFolder::KeepStream(const std::string& rawPath,
                                               std::string_view previousLine) {
    KeptFile file;
    file.PreviousLine = std::string(previousLine);
    return KeepCopy(std::move(file), rawPath);
}

Result<std::string> RecoveryFolder::KeepReplaced(const std::string& path,
                                                 const std::string& newSha256) {
    if (!files_.Exists(path)) return std::string();
    const auto present = Sha256OfFile(files_, path);
    if (!present.Ok()) return present.Why();
    if (present.Value() == newSha256) return std::string();
    KeptFile file;
    file.Kind = KeptKind::kReplaced;
    return KeepCopy(std::move(file), path);
}

std::vector<KeptFile> RecoveryFolder::List() const {
    const auto index = ReadIndex();
    return index.Ok() ? index.Value().Entries() : std::vector<KeptFile>();
}

std::optional<KeptFile> RecoveryFolder::FindStream(const std::string& rawPath) const {
    const auto sum = Sha256OfFile(files_, rawPath);
    if (!sum.Ok()) return std::nullopt;
    std::optional<KeptFile> found;
    for (KeptFile& file : List()) {
        if (file.Kind == KeptKind::kStream && file.Sha256 == sum.Value()) found = std::move(file);
    }
    return found;
}

}  // namespace brask
