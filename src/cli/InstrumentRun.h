// What download and verify work with besides the data objects of every command: the directories,
// which are created, the recovery folder, the expander.
#pragma once

#include "cli/CommandSession.h"
#include "link/LinkNeeds.h"

namespace brask {

class InstrumentRun {
  public:
    // Creates the data directories below --root or the stored base; what cannot be created is
    // reported with a message.
    InstrumentRun(Shell& shell, const CommandLine& line);

    // Both refer to this object and what it was made of.
    LinkSystem System() const;
    LinkData Data();

    Settings& Options() { return session_.Options(); }
    // Where users find what was not shown.
    const std::string& LogPath() { return session_.Log().Path(); }

  private:
    // In the order in which one needs the other.
    Shell& shell_;
    CommandSession session_;
    CollectSession collect_;
    DataDirectories directories_;
    RecoveryFolder recovery_;
    ReceivedFileExpander expander_;
};

}  // namespace brask
