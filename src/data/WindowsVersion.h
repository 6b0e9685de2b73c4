// Which kind of Windows the program runs on, and the warning about those that are too old.
#pragma once

#include <cstdint>

#include "platform/SystemInformation.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

class Settings;

enum class WindowsKind : std::int16_t {
    kNotClassified = 0,  // also every system that is no Windows
    kWin32s = 1,
    kWindows9x = 2,
    kNt4 = 3,
    kNt5Early = 4,  // major 5 below build 2196
    kNt5 = 5,       // major 5 from build 2196 on
};

// Only kNt5 changes what the program does: data may then go below the documents of all users.
WindowsKind ClassifyWindows(const VersionRecord& version);

// Run once at start-up: classifies the system, and warns once per user ("WarnedVers") when it is
// older than Windows 98 Second Edition.
WindowsKind CheckWindowsVersion(const SystemInformation& system, UserInterface& user,
                                const Texts& texts, Settings& settings);

}  // namespace brask
