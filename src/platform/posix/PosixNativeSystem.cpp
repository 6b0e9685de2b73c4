#include "platform/NativeSystem.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixPrograms.h"
#include "platform/posix/PosixSystemInformation.h"
#include "platform/posix/PosixUserLocale.h"

namespace brask {

struct NativeSystem::Parts {
    PosixFiles Disk;
    PosixPrograms OtherPrograms;
    NoUserStores Stores;
    PosixClock Time;
    PosixUserLocale Locale;
    PosixSystemInformation Information;
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
