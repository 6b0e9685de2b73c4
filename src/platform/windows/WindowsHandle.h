// A handle that closes itself, and the system's errors as values.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

#include "platform/Result.h"

namespace brask::windows {

// The system's words for an error number, in the user's language, without the line end that the
// system puts behind them; empty when it has none.
std::string SystemMessage(DWORD number);

// An error number as a value; its reason without the final full stop. What lies in a directory that
// is not there counts as not there: callers tell that by the one number.
Error ErrorOf(DWORD number);

// The error that GetLastError names now.
inline Error LastError() { return ErrorOf(GetLastError()); }

// What files that are none give: see Files::Open.
inline Error IsADirectory() { return {0, "Is a directory"}; }
inline Error NotRegular() { return {0, "not a regular file"}; }

// Owns a handle and cannot be copied; INVALID_HANDLE_VALUE stands for none.
class Handle {
  public:
    explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
    ~Handle() { Close(); }
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) {
            Close();
            handle_ = std::exchange(other.handle_, INVALID_HANDLE_VALUE);
        }
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    // Whether there is a handle; GetLastError tells why not.
    bool Open() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    HANDLE Get() const { return handle_; }
    // False when the system reports a late write error.
    bool Close() {
        const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || handle == nullptr || CloseHandle(handle) != 0;
    }

  private:
    HANDLE handle_;
};

// Opens what stands at a native path without wanting to read it: files and directories, links
// followed. For questions about it.
Handle OpenToLook(const std::wstring& path);

// Writes all bytes, however many calls that takes. A failure can come after part of them was
// written.
Status WriteAll(HANDLE file, std::string_view bytes);

// A new empty file, open for writing; nobody else can open it to write.
struct UniqueFile {
    std::wstring Path;
    Handle File;
};

// Makes a file of a name that nobody else has: the native path in front and six characters.
Result<UniqueFile> CreateUnique(const std::wstring& front);

// Renames, flushed to disk. A target is replaced only when that is wanted, else it is an error. A
// file that another program (a virus scanner, an indexer) holds for a moment is tried again for at
// most a second.
Status Rename(const std::wstring& source, const std::wstring& target, bool replace);

}  // namespace brask::windows
