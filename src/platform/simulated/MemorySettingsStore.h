// A settings store that lives as long as the test and can fail.
#pragma once

#include <map>
#include <string>

#include "platform/SettingsStore.h"

namespace brask {

class MemorySettingsStore final : public SettingsStore {
  public:
    std::map<std::string, std::string> Values;
    bool Full = false;  // saving fails, as on a full disk

    std::string Get(const std::string& key, const std::string& defaultValue) const override {
        const auto found = Values.find(key);
        return found == Values.end() ? defaultValue : found->second;
    }
    Status Save(const std::string& key, const std::string& value) override {
        if (Full) return Error{28, "No space left on device"};
        Values[key] = value;
        return {};
    }
};

}  // namespace brask
