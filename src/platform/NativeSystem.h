// The system that the program really runs on: owns the seams' implementations, so that a main
// function need not know which system that is.
#pragma once

#include <memory>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/InfraredSockets.h"
#include "platform/InstrumentAddress.h"
#include "platform/Programs.h"
#include "platform/StopSignal.h"
#include "platform/SystemInformation.h"
#include "platform/Tcp.h"
#include "platform/UserLocale.h"
#include "platform/UserStores.h"

namespace brask {

class NativeSystem {
  public:
    // Never fails: what the system does not tell has a stand-in, such as the "C" locale.
    NativeSystem();
    ~NativeSystem();
    NativeSystem(const NativeSystem&) = delete;
    NativeSystem& operator=(const NativeSystem&) = delete;

    // All references live as long as this object.
    Files& Disk();
    Programs& OtherPrograms();
    Tcp& Network();
    UserStores& Stores();
    const Clock& Time() const;
    const UserLocale& Locale() const;
    const SystemInformation& Information() const;
    // The link that leads to this instrument; whether anybody is there shows only when it is used.
    // Never null; must not outlive this object.
    std::unique_ptr<InfraredSockets> LinkTo(const InstrumentAddress& address);
    // From now on, as long as the result lives, a wish that this program ends is kept for it. Never
    // null.
    std::unique_ptr<StopSignal> WatchStopSignal();

  private:
    // Behind a pointer, so that no header of one system is seen by code that runs on all.
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace brask
