// Where option values live between runs: named strings, one store per section.
#pragma once

#include <string>

#include "platform/Result.h"

namespace brask {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    // The stored string, or the default when the key does not exist. Never fails.
    virtual std::string Get(const std::string& key, const std::string& defaultValue) const = 0;
    // Stores a string; on failure the old value stays. When it is Ok the value has reached the disk
    // and the next Get returns it.
    virtual Status Save(const std::string& key, const std::string& value) = 0;
};

}  // namespace brask
