// Files on Windows. Both "\" and "/" part a path; paths may be longer than 260 characters.
#pragma once

#include <chrono>

#include "platform/Files.h"

namespace brask {

class WindowsFiles final : public Files {
  public:
    // How long Lock() waits for another program to let go of the lock.
    explicit WindowsFiles(std::chrono::milliseconds lockPatience = std::chrono::seconds(2))
        : lockPatience_(lockPatience) {}

    Result<std::unique_ptr<InputFile>> Open(const std::string& path) override;
    Result<std::unique_ptr<ReplacementFile>> Replace(const std::string& path) override;
    Status Append(const std::string& path, std::string_view bytes) override;
    Status Flush(const std::string& path) override;
    Result<std::string> CreateTemporary(const std::string& namePrefix) override;
    Status CopyToNew(const std::string& source, const std::string& target) override;
    Status Move(const std::string& source, const std::string& target) override;
    Status Remove(const std::string& path) override;
    Status MakeDirectory(const std::string& path) override;
    Status MakeDirectoryChain(const std::string& path) override;
    bool Exists(const std::string& path) const override;
    bool IsDirectory(const std::string& path) const override;
    bool SameFile(const std::string& a, const std::string& b) const override;
    Result<std::unique_ptr<FileLock>> Lock(const std::string& path) override;
    std::string Folder(KnownFolder folder) const override;
    std::string Absolute(const std::string& path) const override;
    char Separator() const override { return '\\'; }

  private:
    std::chrono::milliseconds lockPatience_;
};

}  // namespace brask
