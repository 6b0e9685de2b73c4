// A handheld in memory, whose every operation can be made to fail in several ways.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/HandheldAccess.h"

namespace brask {

class ScriptedHandheld final : public HandheldAccess {
  public:
    std::map<std::string, std::string> Contents;  // path to bytes
    std::set<std::string> Folders;                // those that MakeFolder made
    std::set<std::string> OnPc;                   // files that are the PC's under another path
    bool Connects = true;                         // what Connected says
    bool Initialises = true;
    int ComesUp = 0;  // how many times LinkHasComeUp says yes

    // How the operation FailAt goes wrong.
    enum class Fault {
        kRefused,   // an error, and nothing was done
        kNothing,   // the error that says that nothing is there
        kSilent,    // a read ends early, a size is too small; all else as kRefused
        kDoneOnly,  // an error although it was done
    };
    Fault How = Fault::kRefused;
    // The operation of this number (from 0 on) fails, and all after it when FailForGood is set;
    // none when negative.
    int FailAt = -1;
    bool FailForGood = false;
    int Operations = 0;  // so far

    Status Initialise() override;
    bool LinkHasComeUp() override { return ComesUp-- > 0; }
    bool Connected() override { return Connects; }
    Result<std::string> FindFirst(const std::string& pattern) override;
    Result<std::string> FindNext() override;
    Result<std::unique_ptr<HandheldFile>> Open(const std::string& path) override;
    bool IsFileOfPc(const std::string& path, const std::string& /*native*/) override {
        return OnPc.contains(path);
    }
    Status Delete(const std::string& path) override;
    Status Move(const std::string& from, const std::string& to) override;
    Status MakeFolder(const std::string& path) override;

    // Counts one operation; whether it fails.
    bool Fails();
    // The error that a failing operation reports.
    Error Refusal() const;

  private:
    std::vector<std::string> found_;  // the next one last
};

}  // namespace brask
