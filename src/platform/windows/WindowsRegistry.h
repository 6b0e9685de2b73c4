// The registry: string values, and the store of the user's settings in it.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/UserStores.h"

namespace brask {

namespace windows {

// A string value, UTF-8, without its terminating NUL. Nothing when key or value is missing, cannot
// be read, or is no string.
std::optional<std::string> ReadRegistryText(HKEY root, const std::string& key,
                                            const std::string& value);

// Makes the key with all its parents where missing, stores the string and flushes it to disk.
Status WriteRegistryText(HKEY root, const std::string& key, const std::string& value,
                         const std::string& text);

}  // namespace windows

// The settings of the user as values below HKEY_CURRENT_USER\Software\VEK. Two running programs are
// no danger to each other, since every value is stored by itself.
class WindowsUserStores final : public UserStores {
  public:
    std::unique_ptr<SettingsStore> Open(const std::string& section) override;
    std::string Place(const std::string& section) const override;
};

}  // namespace brask
