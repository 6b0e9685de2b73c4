// A system of a chosen version.
#pragma once

#include <system_error>

#include "platform/SystemInformation.h"

namespace brask {

class FixedSystemInformation final : public SystemInformation {
  public:
    // What Version() answers; without a value the system does not answer.
    std::optional<VersionRecord> Record = VersionRecord{};

    std::optional<VersionRecord> Version() const override { return Record; }
    std::string ErrorText(int number) const override {
        std::string text = std::generic_category().message(number);
        // a text of that kind is none on the real systems, too
        return text.starts_with("Unknown error") ? std::string() : text;
    }
    std::string RegistryText(const std::string&, const std::string&) const override { return ""; }
    std::string UserName() const override { return "tester"; }
    std::string ProgramDirectory() const override { return "/programs"; }
};

}  // namespace brask
