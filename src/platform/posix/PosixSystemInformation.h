// What a POSIX system says about itself. It is none of the systems that are classified by version.
#pragma once

#include "platform/SystemInformation.h"

namespace brask {

class PosixSystemInformation final : public SystemInformation {
  public:
    std::optional<VersionRecord> Version() const override { return VersionRecord{}; }
    std::string ErrorText(int number) const override;
    std::string RegistryText(const std::string&, const std::string&) const override { return {}; }
    std::string UserName() const override;
    std::string ProgramDirectory() const override;
};

}  // namespace brask
