#include <winerror.h>

#include "platform/NativeSystem.h"
#include "platform/simulated/TcpInfraredSockets.h"
#include "platform/windows/WindowsClock.h"
#include "platform/windows/WindowsConsole.h"
#include "platform/windows/WindowsFiles.h"
#include "platform/windows/WindowsInfraredSockets.h"
#include "platform/windows/WindowsPrograms.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsStopSignal.h"
#include "platform/windows/WindowsSystemInformation.h"
#include "platform/windows/WindowsTcp.h"
#include "platform/windows/WindowsUserLocale.h"

namespace brask {

struct NativeSystem::Parts {
    WindowsConsole Console;
    WindowsFiles Disk;
    WindowsPrograms OtherPrograms;
    WindowsTcp Network;
    WindowsUserStores Stores;
    WindowsClock Time;
    WindowsUserLocale Locale;
    WindowsSystemInformation Information;
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
    if (!address.Simulated) return std::make_unique<WindowsInfraredSockets>();
    return std::make_unique<TcpInfraredSockets>(
        parts_->Network, *address.Simulated, LinkErrorNumbers{WSAECONNRESET, ERROR_INVALID_DATA});
}

std::unique_ptr<StopSignal> NativeSystem::WatchStopSignal() {
    return std::make_unique<WindowsStopSignal>();
}

}  // namespace brask
