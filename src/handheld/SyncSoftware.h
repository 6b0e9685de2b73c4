// The synchronization software that the remote-access link needs on the PC.
#pragma once

#include "data/Settings.h"
#include "platform/Files.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

// Whether it is installed where it usually lies. Systems that have no such place say no.
bool SyncSoftwareInstalled(const Files& files);

// Before the handheld is used through the remote-access link: asks once whether such software is
// installed, unless it is found. False, with a message, when it is not; the question then comes
// again the next time. The answer yes is stored.
bool ConfirmSyncSoftware(const Files& files, Settings& settings, UserInterface& user,
                         const Texts& texts);

}  // namespace brask
