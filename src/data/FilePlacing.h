// Putting whole files in their place: received files into the data tree, saved copies where the
// user wants them.
#pragma once

#include <string>

#include "data/DataSet.h"
#include "platform/Files.h"
#include "platform/SystemInformation.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

class FilePlacing {
  public:
    FilePlacing(Files& files, UserInterface& user, const Texts& texts,
                const SystemInformation& system);

    // Moves a received file to its place, replacing what is there; ".csv" is added unless the
    // destination ends in exactly that. When neither renaming nor copying works the user is told
    // (with the instrument directory as advice) and false is returned; the source then stays.
    bool PlaceReceivedFile(std::string source, std::string destination,
                           const std::string& instrumentDirectory);

    // Copies in blocks and removes the source: the move between file systems. False on any error.
    bool MoveByCopy(const std::string& source, const std::string& destination);

    // Copies the current data file byte for byte to a new name. An existing target is refused
    // with the system's text for it, although the dialog has asked before.
    bool SaveDataFile(const DataSet& data, const std::string& target);

  private:
    std::string ReasonOf(const Error& error) const;

    Files& files_;
    UserInterface& user_;
    const Texts& texts_;
    const SystemInformation& system_;
};

}  // namespace brask
