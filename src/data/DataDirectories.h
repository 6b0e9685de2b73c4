// The fixed tree below one data root where received files go. Those of the handheld go to
// ROOT/VEK/From PocketPC/, those of the instrument to ROOT/VEK/From TalvexK42/. The names are the
// same in every installation, so that data is found again after an update.
#pragma once

#include <string>

#include "data/Settings.h"
#include "data/WindowsVersion.h"
#include "platform/Files.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

class DataDirectories {
  public:
    DataDirectories(Files& files, UserInterface& user, const Texts& texts);

    // Takes this base directory instead of the resolved one, until the program ends. For the option
    // --root; an absolute path. Nothing is stored.
    void OverrideBase(std::string base) { overriddenBase_ = std::move(base); }

    // Computes the three paths from the settings and creates them. What cannot be created is
    // reported with a message; the paths stand all the same. Called at start-up; a later call puts
    // changed settings in force.
    void ResolveDataDirectories(const Settings& settings, WindowsKind kind);

    // Creates a directory with all its parents; on failure shows "Cannot Create Directory".
    void EnsureDirectory(const std::string& path);

    // Each ends in the system's separator; empty before the first ResolveDataDirectories.
    const std::string& DataRootDir() const { return dataRootDir_; }
    const std::string& PocketPcDir() const { return pocketPcDir_; }
    const std::string& InstrumentDir() const { return instrumentDir_; }

    // The directory that data lies under when the user chose none. The shared documents where data
    // is for all users and the system is recent enough to have them, else the user's own; a
    // temporary directory where the system names none.
    std::string SystemBase(const Settings& settings, WindowsKind kind) const;

  private:
    std::string Base(const Settings& settings, WindowsKind kind) const;

    Files& files_;
    UserInterface& user_;
    const Texts& texts_;
    std::string overriddenBase_;
    std::string dataRootDir_;
    std::string pocketPcDir_;
    std::string instrumentDir_;
};

}  // namespace brask
