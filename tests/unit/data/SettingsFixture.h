// Settings on stores in memory.
#pragma once

#include <string>
#include <vector>

#include "data/Settings.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"

namespace brask {

struct SettingsInMemory {
    MemorySettingsStore Known;
    MemorySettingsStore Own;
    FixedUserLocale Locale;
    std::vector<std::string> Failed;  // "key: reason" of each save that failed
    Settings Options{Known, Own, Locale, [this](const std::string& key, const std::string& reason) {
                         Failed.push_back(key + ": " + reason);
                     }};
};

}  // namespace brask
