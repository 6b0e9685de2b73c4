#include "platform/NativeSystem.h"
#include "platform/windows/WindowsClock.h"
#include "platform/windows/WindowsConsole.h"
#include "platform/windows/WindowsFiles.h"
#include "platform/windows/WindowsPrograms.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsSystemInformation.h"
#include "platform/windows/WindowsUserLocale.h"

namespace brask {

struct NativeSystem::Parts {
    WindowsConsole Console;
    WindowsFiles Disk;
    WindowsPrograms OtherPrograms;
    WindowsUserStores Stores;
    WindowsClock Time;
    WindowsUserLocale Locale;
    WindowsSystemInformation Information;
};

NativeSystem::NativeSystem() : parts_(std::make_unique<Parts>()) {}
NativeSystem::~NativeSystem() = default;

Files& NativeSystem::Disk() { return parts_->Disk; }
Programs& NativeSystem::OtherPrograms() { return parts_->OtherPrograms; }
UserStores& NativeSystem::Stores() { return parts_->Stores; }
const Clock& NativeSystem::Time() const { return parts_->Time; }
const UserLocale& NativeSystem::Locale() const { return parts_->Locale; }
const SystemInformation& NativeSystem::Information() const { return parts_->Information; }

}  // namespace brask
