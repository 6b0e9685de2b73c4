#include "platform/windows/WindowsReplacementFile.h"

#include <optional>
#include <vector>

#include "platform/windows/WindowsText.h"

namespace brask::windows {
namespace {

constexpr std::size_t kPendingLimit = std::size_t{256} * 1024;

// The file that a link names; the path itself when it is no link or leads nowhere.
std::wstring FollowLinks(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return path;
    }
    const Handle file = OpenToLook(path);
    std::wstring final(32768, L'\0');
    final.resize(file.Open() ? GetFinalPathNameByHandleW(file.Get(), final.data(),
                                                         static_cast<DWORD>(final.size()), 0)
                             : 0);
    return final.empty() ? path : final;
}

// Why the target must not be replaced.
std::optional<Error> Refusal(const std::wstring& target, bool newOnly) {
    if (target.empty()) return ErrorOf(ERROR_FILE_NOT_FOUND);
    // a device can be written to but must not be replaced by a file
    if (NamesDevice(target)) return NotRegular();
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
    if (newOnly) return ErrorOf(ERROR_FILE_EXISTS);
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return IsADirectory();
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return ErrorOf(ERROR_ACCESS_DENIED);
    return std::nullopt;
}

// Who may do what with the old file holds for the new one, too. Nothing to do where there is no old
// file, or where its drive keeps no such lists.
Status CopyPermissions(const std::wstring& from, const std::wstring& to) {
    DWORD length = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &length);
    std::vector<unsigned char> permissions(length);
    if (length == 0 || GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, permissions.data(),
                                        length, &length) == 0) {
        return {};
    }
    if (SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, permissions.data()) == 0) {
        return LastError();
    }
    return {};
}

}  // namespace

Result<std::unique_ptr<WindowsReplacementFile>> WindowsReplacementFile::Start(
    const std::string& path, bool newOnly) {
    const std::wstring native = NativePath(path);
    const std::wstring target = newOnly ? native : FollowLinks(native);
    if (const auto refusal = Refusal(target, newOnly)) return *refusal;
    const std::wstring directory = target.substr(0, target.find_last_of(L'\\') + 1);
    auto made = CreateUnique(directory + L".brask-");
    if (!made.Ok()) return made.Why();
    std::unique_ptr<WindowsReplacementFile> file(
        new WindowsReplacementFile(target, std::move(made.Value()), newOnly));
    if (Status copied = CopyPermissions(target, file->sibling_); !copied.Ok()) return copied.Why();
    return file;
}

WindowsReplacementFile::WindowsReplacementFile(std::wstring target, UniqueFile sibling,
                                               bool newOnly)
    : target_(std::move(target)),
      sibling_(std::move(sibling.Path)),
      handle_(std::move(sibling.File)),
      newOnly_(newOnly) {}

WindowsReplacementFile::~WindowsReplacementFile() {
    // first closed: an open file cannot be removed here
    handle_.Close();
    if (!sibling_.empty()) DeleteFileW(sibling_.c_str());
}

Status WindowsReplacementFile::Write(std::string_view bytes) {
    // A writer of many short lines costs one call of the system per 256 KiB.
    pending_ += bytes;
    return pending_.size() < kPendingLimit ? Status() : Flush();
}

Status WindowsReplacementFile::Flush() {
    Status written = WriteAll(handle_.Get(), pending_);
    pending_.clear();
    return written;
}

Status WindowsReplacementFile::Commit() {
    if (Status written = Flush(); !written.Ok()) return written;
    // Before the rename: else a power cut can leave the new name with no content behind it.
    if (FlushFileBuffers(handle_.Get()) == 0 || !handle_.Close()) return LastError();
    // A plain rename and not the system's own ReplaceFile: that takes two steps, and between them
    // there is no file of the name.
    if (Status renamed = Rename(sibling_, target_, !newOnly_); !renamed.Ok()) return renamed;
    sibling_.clear();
    return {};
}

}  // namespace brask::windows
