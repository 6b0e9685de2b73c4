// The settings store where the system has no registry, or where the user names a file: one section
// of one INI file. A second running program is respected: every save takes the lock, reads the
// file again, changes the one key and replaces the file durably.
#pragma once

#include <memory>
#include <string>

#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/SettingsStore.h"

namespace brask {

// The file behind one or more section stores.
class IniSettingsFile {
  public:
    // Larger files are not settings files of ours.
    static constexpr std::size_t kSizeLimit = 1 << 20;

    // Reads the file at once; a missing one is an empty one. A damaged one is renamed to the same
    // name with ".bad" behind it, and Damage() says why.
    IniSettingsFile(Files& files, std::string path);

    const std::string& Path() const { return path_; }
    // Why the file was set aside, or why it could not be read; empty when all is well.
    const std::string& Damage() const { return damage_; }

    std::string Get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const;
    Status Save(const std::string& section, const std::string& key, const std::string& value);

  private:
    Status Reload();

    Files& files_;
    std::string path_;
    std::string damage_;
    IniFile content_;
};

class IniSettingsStore final : public SettingsStore {
  public:
    IniSettingsStore(IniSettingsFile& file, std::string section)
        : file_(file), section_(std::move(section)) {}

    std::string Get(const std::string& key, const std::string& defaultValue) const override {
        return file_.Get(section_, key, defaultValue);
    }
    Status Save(const std::string& key, const std::string& value) override {
        return file_.Save(section_, key, value);
    }

  private:
    IniSettingsFile& file_;
    std::string section_;
};

}  // namespace brask
