// What the system says about itself.
#pragma once

#include <optional>
#include <string>

#include "platform/Texts.h"

namespace brask {

// The operating system's version as it reports it.
struct VersionRecord {
    int Major = 0;
    int Minor = 0;
    int Build = 0;
    // 0 Win32s, 1 the 95/98/Me family, 2 the NT family; -1 any system that is none of these. The
    // numbers are those that Windows itself uses.
    int Platform = -1;
    // As the system fills its buffer: may be longer than the text, with a NUL where that ends.
    std::string ServicePack;
};

class SystemInformation {
  public:
    virtual ~SystemInformation() = default;

    // Nothing when the system does not answer. Asked once, when the program starts.
    virtual std::optional<VersionRecord> Version() const = 0;
    // The system's own words for an error number; empty when it has none.
    virtual std::string ErrorText(int number) const = 0;
    // A string value of the machine-wide registry; empty when missing or where there is none.
    virtual std::string RegistryText(const std::string& key, const std::string& value) const = 0;
    // The name that the user is logged in with. The user's number where the name is unknown.
    virtual std::string UserName() const = 0;
    // The directory that the running program lies in, without a separator at its end. Where
    // companion programs and files installed beside it are looked for.
    virtual std::string ProgramDirectory() const = 0;
};

// The system's text for an error number, or "??? Unknown Error #" and the number when it has none.
std::string SystemErrorText(const SystemInformation& system, const Texts& texts, int number);

}  // namespace brask
