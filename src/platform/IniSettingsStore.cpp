#include "platform/IniSettingsStore.h"

#include <cerrno>
#include <utility>

namespace brask {

IniSettingsFile::IniSettingsFile(Files& files, std::string path)
    : files_(files), path_(std::move(path)) {
    if (const Status read = Reload(); !read.Ok() && damage_.empty()) damage_ = read.Why().Reason;
}

Status IniSettingsFile::Reload() {
    if (!files_.Exists(path_)) {
        content_ = IniFile();
        return {};
    }
    const auto bytes = ReadWholeFile(files_, path_, kSizeLimit);
    // what cannot be read (or is a device) is left alone; what is no settings file is set aside
    if (!bytes.Ok() && bytes.Why().Number != EFBIG) return bytes.Why();
    auto parsed = bytes.Ok() ? IniFile::Parse(bytes.Value()) : Result<IniFile>(bytes.Why());
    if (parsed.Ok()) {
        content_ = std::move(parsed.Value());
        return {};
    }
    damage_ = parsed.Why().Reason;
    content_ = IniFile();
    return files_.Move(path_, path_ + ".bad");
}

std::string IniSettingsFile::Get(const std::string& section, const std::string& key,
                                 const std::string& defaultValue) const {
    return content_.Get(section, key).value_or(defaultValue);
}

Status IniSettingsFile::Save(const std::string& section, const std::string& key,
                             const std::string& value) {
    const auto slash = path_.find_last_of('/');
    const std::string directory = slash == std::string::npos ? "" : path_.substr(0, slash);
    if (!directory.empty()) {
        if (Status made = files_.MakeDirectoryChain(directory); !made.Ok()) return made;
    }
    const auto lock = files_.Lock(path_ + ".lock");
    if (!lock.Ok()) return lock.Why();
    if (Status read = Reload(); !read.Ok()) return read;
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
