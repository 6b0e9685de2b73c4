// What Windows says about itself.
#pragma once

#include "platform/SystemInformation.h"

namespace brask {

class WindowsSystemInformation final : public SystemInformation {
  public:
    // As the system tells it to a program of this age; newer systems all give the number of the
    // last one that programs may rely on.
    std::optional<VersionRecord> Version() const override;
    // With the full stop that the system's messages end in, without their line end.
    std::string ErrorText(int number) const override;
    // From HKEY_LOCAL_MACHINE.
    std::string RegistryText(const std::string& key, const std::string& value) const override;
    // Empty when the system does not tell it: there is no number to take instead.
    std::string UserName() const override;
    std::string ProgramDirectory() const override;
};

}  // namespace brask
