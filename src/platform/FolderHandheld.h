// A folder that stands for the storage root of a handheld: a mounted device, a memory card, a
// copied tree.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/HandheldAccess.h"

namespace brask {

class FolderHandheld final : public HandheldAccess {
  public:
    // `root` is native; empty when no folder is set up.
    FolderHandheld(Files& files, std::string root);

    // Always works.
    Status Initialise() override { return {}; }
    bool LinkHasComeUp() override { return false; }
    // Whether the folder exists.
    bool Connected() override;
    // Files come in the order of their names, letter case aside. A missing folder has none; one
    // that cannot be listed is an error.
    Result<std::string> FindFirst(const std::string& pattern) override;
    Result<std::string> FindNext() override;
    Result<std::unique_ptr<HandheldFile>> Open(const std::string& path) override;
    bool IsFileOfPc(const std::string& path, const std::string& native) override;
    Status Delete(const std::string& path) override;
    Status Move(const std::string& from, const std::string& to) override;
    Status MakeFolder(const std::string& path) override;

  private:
    // The native path. Each name stands for the entry of exactly that name, else for one that
    // differs in letter case, else for itself. Nothing for a path that would leave the folder.
    std::optional<std::string> Native(const std::string& path) const;

    Files& files_;
    std::string root_;
    std::vector<std::string> found_;  // what FindNext is yet to give, the next one last
};

}  // namespace brask
