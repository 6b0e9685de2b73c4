// The one durable writer: temporary sibling, checked writes, flush, rename, flush of the directory.
#pragma once

#include <memory>
#include <string>

#include "platform/Files.h"
#include "platform/posix/PosixHandle.h"

namespace brask::posix {

class PosixReplacementFile final : public ReplacementFile {
  public:
    // Starts a sibling of the target. With `newOnly` Commit refuses a target that exists. The
    // sibling is called ".brask-" and six random characters. It lies in the same directory because
    // a rename is one step only within a file system. A path that is a link replaces the file
    // behind the link, not the link.
    static Result<std::unique_ptr<PosixReplacementFile>> Start(const std::string& path,
                                                               bool newOnly);
    ~PosixReplacementFile() override;
    PosixReplacementFile(const PosixReplacementFile&) = delete;
    PosixReplacementFile& operator=(const PosixReplacementFile&) = delete;

    Status Write(std::string_view bytes) override;
    Status Commit() override;

  private:
    PosixReplacementFile(std::string target, std::string sibling, Handle handle, bool newOnly);
    Status Flush();
    Status PutInPlace();

    // where Commit puts the file; links are resolved unless it must be new
    std::string target_;
    // the temporary file; empty once it has been renamed
    std::string sibling_;
    Handle handle_;
    bool newOnly_;
    std::string pending_;  // written in large pieces
};

}  // namespace brask::posix
