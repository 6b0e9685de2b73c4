// The settings store where the system has no registry, or where the user names a file: one section
// of one INI file. A second running program is respected: every save takes the lock, reads the
// file again, changes the one key and replaces the file durably.
#pragma once

#include <functional>
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

    // Told why the file could not be used, and the name under which a damaged one was kept; that
    // name is empty for a file that could not be read and was left alone.
    using DamageReport = std::function<void(const std::string& reason, const std::string& kept)>;

    // Reads the file at once; a missing one is an empty one. A damaged one is renamed, now or when
    // a save meets it: ".bad" is put behind its name, with a number when that name is taken. An
    // empty path (no folder for settings is known) is a file that nothing can be saved to.
    IniSettingsFile(Files& files, std::string path, DamageReport report);

    // Empty when no folder for settings is known.
    const std::string& Path() const { return path_; }

    // From memory, as the file was at the last read or save; never fails.
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const;
    // Durable when Ok. What another program changed since is read first and so is not lost; on
    // failure both the file and the value in memory stay as they were.
    Status Save(const std::string& section, const std::string& key, const std::string& value);

  private:
    Status Reload();
    Status SetAside(const std::string& reason);

    Files& files_;
    std::string path_;
    DamageReport report_;
    // what Get answers from
    IniFile content_;
};

// One section of the file as a store of its own; the file must outlive it.
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
