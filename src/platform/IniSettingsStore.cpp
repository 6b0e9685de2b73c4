#include "platform/IniSettingsStore.h"

#include <cerrno>
#include <utility>

namespace brask {

IniSettingsFile::IniSettingsFile(Files& files, std::string path, DamageReport report)
    : files_(files), path_(std::move(path)), report_(std::move(report)) {
    if (path_.empty()) return;
    // The program starts with its defaults rather than not at all.
    if (const Status read = Reload(); !read.Ok()) report_(read.Why().Reason, "");
}

Status IniSettingsFile::Reload() {
    const auto bytes = ReadWholeFile(files_, path_, kSizeLimit);
    // the first start, or the user has removed the file to get the defaults back
    if (!bytes.Ok() && bytes.Why().Number == ENOENT) {
        content_ = IniFile();
        return {};
    }
    // what cannot be read (or is a device) is left alone; what is no settings file is set aside
    if (!bytes.Ok() && bytes.Why().Number != EFBIG) return bytes.Why();
    auto parsed = bytes.Ok() ? IniFile::Parse(bytes.Value()) : Result<IniFile>(bytes.Why());
    if (!parsed.Ok()) return SetAside(parsed.Why().Reason);
    content_ = std::move(parsed.Value());
    return {};
}

// What was read before stays in force: a file damaged while the program runs costs nothing.
Status IniSettingsFile::SetAside(const std::string& reason) {
    std::string kept = path_ + ".bad";
    // an earlier damaged file is never overwritten: it may be the one that can be repaired
    for (int number = 2; files_.Exists(kept); ++number) {
        kept = path_ + ".bad" + std::to_string(number);
    }
    Status moved = files_.Move(path_, kept);
    if (moved.Ok()) report_(reason, kept);
    return moved;
}

std::string IniSettingsFile::Get(const std::string& section, const std::string& key,
                                 const std::string& defaultValue) const {
    return content_.Get(section, key).value_or(defaultValue);
}

Status IniSettingsFile::Save(const std::string& section, const std::string& key,
                             const std::string& value) {
    if (path_.empty()) return Error{ENOENT, "no folder for settings is known"};
    const std::string directory = path_.substr(0, path_.size() - BaseName(files_, path_).size());
    if (!directory.empty()) {
        if (Status made = files_.MakeDirectoryChain(directory); !made.Ok()) return made;
    }
    // A file of its own carries the lock, since the settings file is replaced by every save and a
    // lock on it would stay with the old one.
    const auto lock = files_.Lock(path_ + ".lock");
    if (!lock.Ok()) return lock.Why();
    // read under the lock: what another program has saved meanwhile must not be undone
    if (Status read = Reload(); !read.Ok()) return read;
    // changed in a copy: when writing fails, Get goes on telling what the file holds
    IniFile changed = content_;
    changed.Set(section, key, value);
    const std::string text = changed.Text();
    // the next start would take it for a damaged file and set every setting aside
    if (text.size() > kSizeLimit) return Error{EFBIG, "the settings file would grow too large"};
    if (Status written = WriteWholeFile(files_, path_, text); !written.Ok()) return written;
    content_ = std::move(changed);
    return {};
}

}  // namespace brask
