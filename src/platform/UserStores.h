// The place that the system itself has for the option values of programs, where it has one.
#pragma once

#include <memory>
#include <string>

#include "platform/SettingsStore.h"

namespace brask {

class UserStores {
  public:
    virtual ~UserStores() = default;

    // The present user's store of one section. Null where the system has no such place; a file of
    // the program's own serves there.
    virtual std::unique_ptr<SettingsStore> Open(const std::string& section) = 0;
    // What messages call the store that Open gives; empty when it gives none.
    virtual std::string Place(const std::string& section) const = 0;
};

// For systems that leave it to the program.
class NoUserStores final : public UserStores {
  public:
    std::unique_ptr<SettingsStore> Open(const std::string&) override { return nullptr; }
    std::string Place(const std::string&) const override { return ""; }
};

}  // namespace brask
