#include "platform/posix/PosixReplacementFile.h"

#include <sys/stat.h>

#include <climits>
#include <cstdlib>
#include <utility>

namespace brask::posix {
namespace {

constexpr std::size_t kPendingLimit = std::size_t{256} * 1024;

// The file that a link names; the path itself when it is no link or leads nowhere.
std::string FollowLinks(const std::string& path) {
    char resolved[PATH_MAX];
    return ::realpath(path.c_str(), resolved) != nullptr ? std::string(resolved) : path;
}

// What a newly created file would get; asked by looking, since umask() can only be read by setting.
mode_t PermissionsFor(const std::string& target) {
    struct stat status {};
    if (::stat(target.c_str(), &status) == 0) return status.st_mode & 07777;
    // mkostemp makes files that only their owner may read; a data file is meant to be shared like
    // any other new file.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace

Result<std::unique_ptr<PosixReplacementFile>> PosixReplacementFile::Start(const std::string& path,
                                                                          bool newOnly) {
    // Users keep data files and settings behind links; renaming over the link would cut it off.
    const std::string target = newOnly ? path : FollowLinks(path);
    struct stat status {};
    if (::stat(target.c_str(), &status) == 0) {
        if (newOnly) return Error{EEXIST, std::strerror(EEXIST)};
        if (S_ISDIR(status.st_mode)) return Error{EISDIR, std::strerror(EISDIR)};
        // a device or pipe can be written to but must not be replaced by a file
        if (!S_ISREG(status.st_mode)) return Error{0, "not a regular file"};
    }
    std::string sibling = DirectoryOf(target) + "/.brask-XXXXXX";
    Handle handle(::mkostemp(sibling.data(), O_CLOEXEC));
    if (!handle.Open()) return LastError();
    if (::fchmod(handle.Get(), PermissionsFor(target)) != 0) {
        const Error error = LastError();
        ::unlink(sibling.c_str());
        return error;
    }
    return std::unique_ptr<PosixReplacementFile>(
        new PosixReplacementFile(target, std::move(sibling), std::move(handle), newOnly));
}

PosixReplacementFile::PosixReplacementFile(std::string target, std::string sibling, Handle handle,
                                           bool newOnly)
    : target_(std::move(target)),
      sibling_(std::move(sibling)),
      handle_(std::move(handle)),
      newOnly_(newOnly) {}

PosixReplacementFile::~PosixReplacementFile() {
    // also after link(), which leaves the sibling as a second name of the finished file
    if (!sibling_.empty()) ::unlink(sibling_.c_str());
}

Status PosixReplacementFile::Write(std::string_view bytes) {
    // A writer of many short lines costs one call of the system per 256 KiB.
    pending_ += bytes;
    return pending_.size() < kPendingLimit ? Status() : Flush();
}

Status PosixReplacementFile::Flush() {
    Status written = WriteAll(handle_.Get(), pending_);
    pending_.clear();
    return written;
}

Status PosixReplacementFile::Commit() {
    if (Status written = Flush(); !written.Ok()) return written;
    // Before the rename: else a power cut can leave the new name with no content behind it. Network
    // file systems report a full disk as late as at the close.
    if (::fsync(handle_.Get()) != 0 || !handle_.Close()) return LastError();
    if (Status placed = PutInPlace(); !placed.Ok()) return placed;
    return FlushDirectory(DirectoryOf(target_));
}

Status PosixReplacementFile::PutInPlace() {
    if (!newOnly_) {
        if (::rename(sibling_.c_str(), target_.c_str()) != 0) return LastError();
        sibling_.clear();
        return {};
    }
    // link() refuses an existing target even when it appeared a moment ago
    if (::link(sibling_.c_str(), target_.c_str()) == 0) return {};
    if (errno == EEXIST) return LastError();
    // file systems without links (FAT cards) get the test and a rename
    if (::access(target_.c_str(), F_OK) == 0) return Error{EEXIST, std::strerror(EEXIST)};
    if (::rename(sibling_.c_str(), target_.c_str()) != 0) return LastError();
    sibling_.clear();
    return {};
}

}  // namespace brask::posix
