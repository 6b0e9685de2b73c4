#include "platform/HandheldAddress.h"

namespace brask {
namespace {

// There is no such library here: the link cannot even be begun.
class NoRemoteHandheld final : public HandheldAccess {
  public:
    Status Initialise() override { return None(); }
    bool LinkHasComeUp() override { return false; }
    bool Connected() override { return false; }
    Result<std::string> FindFirst(const std::string&) override { return None(); }
    Result<std::string> FindNext() override { return None(); }
    Result<std::unique_ptr<HandheldFile>> Open(const std::string&) override { return None(); }
    Status Delete(const std::string&) override { return None(); }
    Status Move(const std::string&, const std::string&) override { return None(); }
    Status MakeFolder(const std::string&) override { return None(); }

  private:
    static Error None() { return {0, "this system has no remote-access library for handhelds"}; }
};

}  // namespace

HandheldAddress DefaultHandheldAddress() { return {}; }

std::unique_ptr<HandheldAccess> MakeRemoteHandheld() {
    return std::make_unique<NoRemoteHandheld>();
}

}  // namespace brask
