// A file descriptor that closes itself, and errno as a value.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Result.h"

namespace brask::posix {

// The error that errno names now.
inline Error LastError() {
    const int number = errno;
    char buffer[256] = "";
    return {number, strerror_r(number, buffer, sizeof buffer)};
}

// Owns a descriptor and cannot be copied; -1 stands for none.
class Handle {
  public:
    explicit Handle(int descriptor = -1) : descriptor_(descriptor) {}
    ~Handle() { Close(); }
    Handle(Handle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) {
            Close();
            descriptor_ = std::exchange(other.descriptor_, -1);
        }
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    // Whether there is a descriptor; errno tells why not.
    bool Open() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }
    // False when the system reports a late write error.
    bool Close() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

  private:
    int descriptor_;
};

// Writes all bytes, however many calls that takes. A failure can come after part of them was
// written.
inline Status WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return LastError();
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

// The directory that a path lies in. "." for a bare name, "/" for what lies in the root.
inline std::string DirectoryOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// Flushes a directory, so that a name made or changed in it survives a power cut.
inline Status FlushDirectory(const std::string& directory) {
    const Handle handle(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!handle.Open()) return LastError();
    // some file systems have nothing to flush in a directory and say so
    if (::fsync(handle.Get()) != 0 && errno != EINVAL) return LastError();
    return {};
}

}  // namespace brask::posix
