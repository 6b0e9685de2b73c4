#include "platform/windows/WindowsFiles.h"

#include <algorithm>
#include <utility>

#include "platform/windows/WindowsFolders.h"
#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsReplacementFile.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

using windows::ErrorOf;
using windows::Handle;
using windows::LastError;
using windows::NativePath;

// Other programs may read, change, rename and remove the file meanwhile, as on other systems.
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class WindowsInputFile final : public InputFile {
  public:
    WindowsInputFile(Handle handle, std::uint64_t size) : handle_(std::move(handle)), size_(size) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        constexpr std::size_t kLongestCall = std::size_t{1} << 30;
        std::size_t length = 0;
        // Callers take a short read for the end of the file, but network drives may give less.
        while (length < buffer.size()) {
            DWORD count = 0;
            const auto wanted = static_cast<DWORD>(std::min(buffer.size() - length, kLongestCall));
            if (ReadFile(handle_.Get(), buffer.data() + length, wanted, &count, nullptr) == 0) {
                return LastError();
            }
            if (count == 0) break;
            length += count;
        }
        return length;
    }
    std::uint64_t Size() const override { return size_; }

  private:
    Handle handle_;
    std::uint64_t size_;
};

class WindowsFileLock final : public FileLock {
  public:
    explicit WindowsFileLock(Handle handle) : handle_(std::move(handle)) {}

  private:
    Handle handle_;  // closing it lets go of the lock
};

bool IsDirectoryAt(const std::wstring& path) {
    const Handle found = windows::OpenToLook(path);
    BY_HANDLE_FILE_INFORMATION about{};
    return found.Open() && GetFileInformationByHandle(found.Get(), &about) != 0 &&
           (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The error of a failed opening, told as people expect it for a directory.
Error OpeningError(const std::wstring& path) {
    const Error error = LastError();
    return IsDirectoryAt(path) ? windows::IsADirectory() : error;
}

Status MakeChain(const std::wstring& path) {
    if (CreateDirectoryW(path.c_str(), nullptr) != 0) return {};
    const DWORD error = GetLastError();
    // The root of a drive refuses to be made with an error of its own.
    if (IsDirectoryAt(path)) return {};
    const auto separator = path.find_last_of(L'\\');
    if (error != ERROR_PATH_NOT_FOUND || separator == std::wstring::npos || separator == 0) {
        return ErrorOf(error);
    }
    if (Status parent = MakeChain(path.substr(0, separator)); !parent.Ok()) return parent;
    return CreateDirectoryW(path.c_str(), nullptr) != 0 ? Status() : LastError();
}

}  // namespace

Result<std::unique_ptr<InputFile>> WindowsFiles::Open(const std::string& path) {
    const std::wstring native = NativePath(path);
    // asked by name: opening a serial port can already mean something to what hangs on it
    if (windows::NamesDevice(native)) return windows::NotRegular();
    Handle handle(CreateFileW(native.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!handle.Open()) return OpeningError(native);
    if (GetFileType(handle.Get()) != FILE_TYPE_DISK) return windows::NotRegular();
    LARGE_INTEGER size{};
    if (GetFileSizeEx(handle.Get(), &size) == 0) return LastError();
    std::unique_ptr<InputFile> file = std::make_unique<WindowsInputFile>(
        std::move(handle), static_cast<std::uint64_t>(size.QuadPart));
    return file;
}

Result<std::unique_ptr<ReplacementFile>> WindowsFiles::Replace(const std::string& path) {
    auto started = windows::WindowsReplacementFile::Start(path, false);
    if (!started.Ok()) return started.Why();
    std::unique_ptr<ReplacementFile> file = std::move(started.Value());
    return file;
}

Status WindowsFiles::Append(const std::string& path, std::string_view bytes) {
    const std::wstring native = NativePath(path);
    if (windows::NamesDevice(native)) return windows::NotRegular();
    // The right to append alone puts entries of two running programs one behind the other.
    Handle handle(CreateFileW(native.c_str(), FILE_APPEND_DATA, kShareAll, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle.Open()) return OpeningError(native);
    if (Status written = windows::WriteAll(handle.Get(), bytes); !written.Ok()) return written;
    if (!handle.Close()) return LastError();
    return {};
}

Status WindowsFiles::Flush(const std::string& path) {
    // The name of a file is on disk with the file: the system writes both in one journal.
    const Handle handle(CreateFileW(NativePath(path).c_str(), GENERIC_WRITE, kShareAll, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return handle.Open() && FlushFileBuffers(handle.Get()) != 0 ? Status() : LastError();
}

Result<std::string> WindowsFiles::CreateTemporary(const std::string& namePrefix) {
    wchar_t directory[MAX_PATH + 1] = L"";
    // ends in a separator
    if (GetTempPathW(MAX_PATH + 1, directory) == 0) return LastError();
    auto made = windows::CreateUnique(directory + windows::ToWide(namePrefix));
    if (!made.Ok()) {
        return Error{made.Why().Number, windows::ToUtf8(directory) + ": " + made.Why().Reason};
    }
    return windows::ToUtf8(made.Value().Path);
}

Status WindowsFiles::CopyToNew(const std::string& source, const std::string& target) {
    auto opened = Open(source);
    if (!opened.Ok()) return opened.Why();
    // The source is opened first: a missing one must leave no sibling behind.
    auto started = windows::WindowsReplacementFile::Start(target, true);
    if (!started.Ok()) return started.Why();
    // large enough that the calls to the system cost nothing beside the copying
    constexpr std::size_t kBlock = std::size_t{256} * 1024;
    return CopyAndCommit(*opened.Value(), *started.Value(), kBlock);
}

Status WindowsFiles::Move(const std::string& source, const std::string& target) {
    return windows::Rename(NativePath(source), NativePath(target), true);
}

Status WindowsFiles::Remove(const std::string& path) {
    return DeleteFileW(NativePath(path).c_str()) != 0 ? Status() : LastError();
}

Status WindowsFiles::MakeDirectory(const std::string& path) {
    return CreateDirectoryW(NativePath(path).c_str(), nullptr) != 0 ? Status() : LastError();
}

Status WindowsFiles::MakeDirectoryChain(const std::string& path) {
    std::wstring native = NativePath(path);
    // the root of a drive keeps its separator: "C:" alone is another directory
    while (native.size() > 3 && native.back() == L'\\') native.pop_back();
    return MakeChain(native);
}

bool WindowsFiles::Exists(const std::string& path) const {
    return windows::OpenToLook(NativePath(path)).Open();
}

bool WindowsFiles::IsDirectory(const std::string& path) const {
    return IsDirectoryAt(NativePath(path));
}

bool WindowsFiles::SameFile(const std::string& a, const std::string& b) const {
    const Handle first = windows::OpenToLook(NativePath(a));
    const Handle second = windows::OpenToLook(NativePath(b));
    BY_HANDLE_FILE_INFORMATION one{};
    BY_HANDLE_FILE_INFORMATION other{};
    // Drive and file number tell one file under two names, through all kinds of links alike. Both
    // are held open, since a number may be given again once its file is gone.
    return first.Open() && second.Open() && GetFileInformationByHandle(first.Get(), &one) != 0 &&
           GetFileInformationByHandle(second.Get(), &other) != 0 &&
           one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
           one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

Result<std::unique_ptr<FileLock>> WindowsFiles::Lock(const std::string& path) {
    Handle handle(CreateFileW(NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle.Open()) return LastError();
    // The lock belongs to the open file, so it ends with this process however that ends. Asking
    // again, instead of waiting for the lock, puts a bound to the wait.
    constexpr DWORD kFlags = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    constexpr std::chrono::milliseconds kPause(10);
    OVERLAPPED start{};
    for (auto waited = kPause * 0; LockFileEx(handle.Get(), kFlags, 0, 1, 0, &start) == 0;
         waited += kPause) {
        const DWORD error = GetLastError();
        if (error != ERROR_LOCK_VIOLATION && error != ERROR_IO_PENDING) return ErrorOf(error);
        if (waited >= lockPatience_) return Error{0, "another program holds " + path};
        Sleep(static_cast<DWORD>(kPause.count()));
    }
    std::unique_ptr<FileLock> lock = std::make_unique<WindowsFileLock>(std::move(handle));
    return lock;
}

std::string WindowsFiles::Folder(KnownFolder folder) const {
    return windows::KnownFolderPath(folder);
}

std::string WindowsFiles::Absolute(const std::string& path) const {
    std::string absolute = windows::ToUtf8(NativePath(path));
    const std::string_view longForm = "\\\\?\\";
    if (absolute.empty()) return path;
    // people know a path without what marks it as long, and every call puts that in front again
    if (!absolute.starts_with(longForm)) return absolute;
    return absolute.starts_with("\\\\?\\UNC\\") ? "\\" + absolute.substr(7)
                                                : absolute.substr(longForm.size());
}

}  // namespace brask
