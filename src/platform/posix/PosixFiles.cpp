#include "platform/posix/PosixFiles.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

#include "platform/posix/PosixFolders.h"
#include "platform/posix/PosixHandle.h"
#include "platform/posix/PosixReplacementFile.h"

namespace brask {
namespace {

using posix::Handle;
using posix::LastError;

class PosixInputFile final : public InputFile {
  public:
    PosixInputFile(Handle handle, std::uint64_t size) : handle_(std::move(handle)), size_(size) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        std::size_t length = 0;
        // Callers take a short read for the end of the file, but a signal or a network file system
        // may cut one short anywhere.
        while (length < buffer.size()) {
            const ssize_t count =
                ::read(handle_.Get(), buffer.data() + length, buffer.size() - length);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) return LastError();
            if (count == 0) break;
            length += static_cast<std::size_t>(count);
        }
        return length;
    }
    std::uint64_t Size() const override { return size_; }

  private:
    Handle handle_;
    std::uint64_t size_;
};

class PosixFileLock final : public FileLock {
  public:
    explicit PosixFileLock(Handle handle) : handle_(std::move(handle)) {}

  private:
    Handle handle_;  // closing it lets go of the lock
};

Error NotRegular(mode_t mode) {
    if (S_ISDIR(mode)) return {EISDIR, std::strerror(EISDIR)};
    return {0, "not a regular file"};
}

}  // namespace

Result<std::unique_ptr<InputFile>> PosixFiles::Open(const std::string& path) {
    // O_NONBLOCK: opening a pipe would wait for its other end before we could see that it is one
    Handle handle(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!handle.Open()) return LastError();
    struct stat status {};
    if (::fstat(handle.Get(), &status) != 0) return LastError();
    if (!S_ISREG(status.st_mode)) return NotRegular(status.st_mode);
    // a hint that the whole file is read in order; nothing depends on it
    ::posix_fadvise(handle.Get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    std::unique_ptr<InputFile> file = std::make_unique<PosixInputFile>(
        std::move(handle), static_cast<std::uint64_t>(status.st_size));
    return file;
}

Result<std::unique_ptr<ReplacementFile>> PosixFiles::Replace(const std::string& path) {
    auto started = posix::PosixReplacementFile::Start(path, false);
    if (!started.Ok()) return started.Why();
    std::unique_ptr<ReplacementFile> file = std::move(started.Value());
    return file;
}

Status PosixFiles::Append(const std::string& path, std::string_view bytes) {
    Handle handle(
        // O_APPEND puts entries of two running programs one behind the other. O_NONBLOCK: a pipe in
        // the place of the log must not stop the program.
        ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666));
    if (!handle.Open()) return LastError();
    if (Status written = posix::WriteAll(handle.Get(), bytes); !written.Ok()) return written;
    // some file systems report a full disk only here
    if (!handle.Close()) return LastError();
    return {};
}

Status PosixFiles::Flush(const std::string& path) {
    const Handle handle(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    if (!handle.Open() || ::fsync(handle.Get()) != 0) return LastError();
    return posix::FlushDirectory(posix::DirectoryOf(path));
}

Result<std::string> PosixFiles::CreateTemporary(const std::string& namePrefix) {
    std::error_code code;
    // fails where TMPDIR names nothing usable
    std::string path = std::filesystem::temp_directory_path(code).string();
    if (code) path = "/tmp";
    const std::string directory = path;
    path += "/" + namePrefix + "XXXXXX";
    const Handle handle(::mkostemp(path.data(), O_CLOEXEC));
    if (!handle.Open()) {
        const Error error = LastError();
        return Error{error.Number, directory + ": " + error.Reason};
    }
    return path;
}

Status PosixFiles::CopyToNew(const std::string& source, const std::string& target) {
    auto opened = Open(source);
    if (!opened.Ok()) return opened.Why();
    // The source is opened first: a missing one must leave no sibling behind.
    auto started = posix::PosixReplacementFile::Start(target, true);
    if (!started.Ok()) return started.Why();
    // large enough that the calls to the system cost nothing beside the copying
    constexpr std::size_t kBlock = std::size_t{256} * 1024;
    return CopyAndCommit(*opened.Value(), *started.Value(), kBlock);
}

Status PosixFiles::Move(const std::string& source, const std::string& target) {
    if (::rename(source.c_str(), target.c_str()) != 0) return LastError();
    // The name in the new directory is what counts: a received file must be found there after a
    // power cut.
    return posix::FlushDirectory(posix::DirectoryOf(target));
}

Status PosixFiles::Remove(const std::string& path) {
    return ::unlink(path.c_str()) == 0 ? Status() : LastError();
}

Status PosixFiles::MakeDirectory(const std::string& path) {
    return ::mkdir(path.c_str(), 0777) == 0 ? Status() : LastError();
}

Status PosixFiles::MakeDirectoryChain(const std::string& path) {
    std::vector<std::string> missing;
    for (std::filesystem::path part(path); !part.empty() && !Exists(part.string());
         part = part.parent_path()) {
        missing.push_back(part.string());
    }
    std::error_code code;
    std::filesystem::create_directories(path, code);
    if (code) return Error{code.value(), code.message()};
    // a plain file in the place of the directory is a failure, whatever the library says of it
    if (!IsDirectory(path)) return Error{ENOTDIR, std::strerror(ENOTDIR)};
    // a file that is flushed in there is lost in a power cut when the name of its directory is
    for (const std::string& made : missing) {
        Status flushed = posix::FlushDirectory(posix::DirectoryOf(made));
        // one that may be written to but not read cannot be flushed
        if (!flushed.Ok() && flushed.Why().Number != EACCES) return flushed;
    }
    return {};
}

bool PosixFiles::Exists(const std::string& path) const { return ::access(path.c_str(), F_OK) == 0; }

bool PosixFiles::IsDirectory(const std::string& path) const {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool PosixFiles::SameFile(const std::string& a, const std::string& b) const {
    struct stat first {};
    struct stat second {};
    // Device and file number tell one file under two names, through symbolic and hard links alike.
    return ::stat(a.c_str(), &first) == 0 && ::stat(b.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

Result<std::unique_ptr<FileLock>> PosixFiles::Lock(const std::string& path) {
    using namespace std::chrono_literals;
    // O_CLOEXEC, or a program started meanwhile would inherit the lock and keep it.
    Handle handle(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    if (!handle.Open()) return LastError();
    // flock() belongs to the open file, so it ends with this process however that ends. Asking
    // again every 10 ms, instead of waiting within flock(), puts a bound to the wait.
    for (auto waited = 0ms; ::flock(handle.Get(), LOCK_EX | LOCK_NB) != 0; waited += 10ms) {
        if (errno != EWOULDBLOCK && errno != EINTR) return LastError();
        if (waited >= lockPatience_) return Error{0, "another program holds " + path};
        std::this_thread::sleep_for(10ms);
    }
    std::unique_ptr<FileLock> lock = std::make_unique<PosixFileLock>(std::move(handle));
    return lock;
}

std::string PosixFiles::Folder(KnownFolder folder) const {
    return posix::XdgFolder(folder, [](const char* name) {
        const char* value = std::getenv(name);
        return std::string(value == nullptr ? "" : value);
    });
}

std::string PosixFiles::Absolute(const std::string& path) const {
    std::error_code code;
    const auto absolute = std::filesystem::absolute(path, code);
    // by text alone, so that a path whose end does not exist yet works and a link keeps its name
    return code ? path : absolute.lexically_normal().string();
}

}  // namespace brask
