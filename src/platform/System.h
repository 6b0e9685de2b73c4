// All seams to the system, filled once by main.
#pragma once

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/SystemInformation.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"
#include "platform/UserLocale.h"

namespace brask {

// Only main and the main window take the whole; everybody else takes the single seams they use.
// References only: who fills it keeps the objects alive until the last window is gone.
struct System {
    UserInterface& User;
    const Texts& Words;
    Files& Disk;
    const UserLocale& Locale;
    const SystemInformation& Information;
    const Clock& Time;
};

}  // namespace brask
