// The one durable writer: temporary sibling, checked writes, flush, rename that is flushed, too.
#pragma once

#include <memory>
#include <string>

#include "platform/Files.h"
#include "platform/windows/WindowsHandle.h"

namespace brask::windows {

class WindowsReplacementFile final : public ReplacementFile {
  public:
    // Starts a sibling of the target, called ".brask-" and six characters. With `newOnly` Commit
    // refuses a target that exists. It lies in the same directory because a rename is one step only
    // within a drive. A path that is a link replaces the file behind the link, not the link. A
    // read-only target is refused at once.
    static Result<std::unique_ptr<WindowsReplacementFile>> Start(const std::string& path,
                                                                 bool newOnly);
    ~WindowsReplacementFile() override;
    WindowsReplacementFile(const WindowsReplacementFile&) = delete;
    WindowsReplacementFile& operator=(const WindowsReplacementFile&) = delete;

    Status Write(std::string_view bytes) override;
    Status Commit() override;

  private:
    WindowsReplacementFile(std::wstring target, UniqueFile sibling, bool newOnly);
    Status Flush();

    // native paths; the sibling's is empty once it has been renamed
    std::wstring target_;
    std::wstring sibling_;
    Handle handle_;
    bool newOnly_;
    std::string pending_;  // written in large pieces
};

}  // namespace brask::windows
