// A disk in memory, whose every operation can be made to fail.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/Files.h"

namespace brask {

class MemoryFiles final : public Files {
  public:
    std::map<std::string, std::string> Contents;  // path to bytes
    std::set<std::string> Directories = {"/"};
    // The operation of this number (counted from 0 over all that can fail) fails, and so do all
    // after it when FailForGood is set; none when negative. A test can count the operations of a
    // good run, then repeat it with each of them failing in turn.
    int FailAt = -1;
    bool FailForGood = false;
    // Operations so far that could have failed.
    int Operations = 0;
    // Sizes that files had when they were flushed last.
    std::map<std::string, std::size_t> Flushed;
    bool NoMove = false;  // Move always fails, as across file systems

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
    bool SameFile(const std::string& a, const std::string& b) const override {
        return Absolute(a) == Absolute(b) && Exists(a);
    }
    Result<std::unique_ptr<FileLock>> Lock(const std::string& path) override;
    // "/home/documents", "/home/shared", "/home/missing", "/home/settings", "/home/state",
    // "/home/log".
    std::string Folder(KnownFolder folder) const override;
    std::string Absolute(const std::string& path) const override {
        return path.empty() || path[0] != '/' ? "/" + path : path;
    }
    char Separator() const override { return '/'; }

    // Counts one operation; the error that it has to report, if any.
    Status Step();
};

}  // namespace brask
