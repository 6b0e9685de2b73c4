// What is around the program, in memory and by hand.
#pragma once

#include <string>
#include <vector>

#include "data/Settings.h"
#include "platform/simulated/FixedSystemInformation.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/ManualClock.h"
#include "platform/simulated/MemoryFiles.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {

struct Surroundings {
    MemorySettingsStore Known;
    MemorySettingsStore Own;
    FixedUserLocale Locale;
    std::vector<std::string> Failed;  // "key: reason" of each save that failed
    Settings Options{Known, Own, Locale, [this](const std::string& key, const std::string& reason) {
                         Failed.push_back(key + ": " + reason);
                     }};
    MemoryFiles Disk;
    ManualClock Clock;
    ScriptedUserInterface User;
    EnglishTexts Words;
    FixedSystemInformation Information;
};

}  // namespace brask
