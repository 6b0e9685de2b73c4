// The system that the program really runs on: owns the seams' implementations, so that a main
// function need not know which system that is.
#pragma once

#include <memory>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Programs.h"
#include "platform/SystemInformation.h"
#include "platform/UserLocale.h"

namespace brask {

class NativeSystem {
  public:
    NativeSystem();
    ~NativeSystem();
    NativeSystem(const NativeSystem&) = delete;
    NativeSystem& operator=(const NativeSystem&) = delete;

    Files& Disk();
    Programs& OtherPrograms();
    const Clock& Time() const;
    const UserLocale& Locale() const;
    const SystemInformation& Information() const;

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace brask
