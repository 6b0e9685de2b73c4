// What the download works with, in two handfuls: the system's seams and the data objects of the
// run. References; who starts a download keeps the objects alive until it has ended.
#pragma once

#include "data/CollectSession.h"
#include "data/DataDirectories.h"
#include "data/DiagnosticLog.h"
#include "data/ReceivedFileExpander.h"
#include "data/RecoveryFolder.h"
#include "data/Settings.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/InfraredSockets.h"
#include "platform/SystemInformation.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

// The seams, but for the sockets: filing a stream needs none.
struct LinkSystem {
    UserInterface& User;
    const Texts& Words;
    Files& Disk;
    const SystemInformation& Information;
    const Clock& Time;
};

// What outlives a download. The settings are asked at the moment of use, so that a change in the
// middle of a download counts.
struct LinkData {
    // how it goes, for the main window that waits
    CollectSession& Session;
    DataDirectories& Directories;
    const Settings& Options;
    DiagnosticLog& Log;
    // One for the whole run of the program: what it expands next may repeat the last line of what
    // it expanded before.
    ReceivedFileExpander& Expander;
    // where every stream and every replaced file is kept
    RecoveryFolder& Recovery;
};

}  // namespace brask
