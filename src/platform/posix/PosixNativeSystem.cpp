#include <cerrno>

#include "platform/NativeSystem.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixInfraredSockets.h"
#include "platform/posix/PosixPrograms.h"
#include "platform/posix/PosixStopSignal.h"
#include "platform/posix/PosixSystemInformation.h"
#include "platform/posix/PosixTcp.h"
#include "platform/posix/PosixUserLocale.h"
#include "platform/simulated/TcpInfraredSockets.h"

namespace brask {

struct NativeSystem::Parts {
    PosixFiles Disk;
    PosixPrograms OtherPrograms;
    PosixTcp Network;
    NoUserStores Stores;
    PosixClock Time;
    PosixUserLocale Locale;
    PosixSystemInformation Information;
};

NativeSystem::NativeSystem() : parts_(std::make_unique<Parts>()) {}
NativeSystem::~NativeSystem() = default;

Files& NativeSystem::Disk() { return parts_->Disk; }
Programs& NativeSystem::OtherPrograms() { return parts_->OtherPrograms; }
Tcp& NativeSystem::Network() { return parts_->Network; }
UserStores& NativeSystem::Stores() { return parts_->Stores; }
const Clock& NativeSystem::Time() const { return parts_->Time; }
const UserLocale& NativeSystem::Locale() const { return parts_->Locale; }
const SystemInformation& NativeSystem::Information() const { return parts_->Information; }

std::unique_ptr<InfraredSockets> NativeSystem::LinkTo(const InstrumentAddress& address) {
    if (!address.Simulated) return std::make_unique<PosixInfraredSockets>();
    return std::make_unique<TcpInfraredSockets>(parts_->Network, *address.Simulated,
                                                LinkErrorNumbers{ECONNRESET, EPROTO});
}

std::unique_ptr<StopSignal> NativeSystem::WatchStopSignal() {
    return std::make_unique<PosixStopSignal>();
}

}  // namespace brask
