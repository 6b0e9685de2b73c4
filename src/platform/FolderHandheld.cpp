#include "platform/FolderHandheld.h"

#include <algorithm>
#include <filesystem>

#include "platform/AsciiText.h"

namespace brask {
namespace {

namespace fs = std::filesystem;

Error NoMoreFiles() { return {0, "There are no more files"}; }
Error OutsideTheFolder() { return {0, "the path leads out of the folder"}; }
Error NameIsTaken() { return {static_cast<int>(std::errc::file_exists), "the name is taken"}; }

// The texts of this program are UTF-8 on every system, those of std::filesystem are not.
fs::path ToPath(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }
std::string FromPath(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

enum class Kind { kAny, kFiles };

// The names of a folder's entries; none when there is no such folder.
Result<std::vector<std::string>> NamesIn(const std::string& folder, Kind kind) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(ToPath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unreadable;
        if (kind == Kind::kFiles && !entry->is_regular_file(unreadable)) continue;
        names.push_back(FromPath(entry->path().filename()));
    }
    if (Error why{error.value(), error.message()}; error && !NothingThere(why)) return why;
    return names;
}

bool MatchesPattern(const std::string& name, const std::string& pattern) {
    if (!pattern.starts_with('*')) return SameIgnoringCase(name, pattern);
    const std::size_t ending = pattern.size() - 1;
    return name.size() >= ending &&
           SameIgnoringCase(name.substr(name.size() - ending), pattern.substr(1));
}

class FolderFile final : public HandheldFile {
  public:
    FolderFile(Files& files, std::string path, std::unique_ptr<InputFile> file)
        : files_(files), path_(std::move(path)), file_(std::move(file)) {}

    Result<std::size_t> Read(std::span<char> buffer) override { return file_->Read(buffer); }
    Result<std::uint64_t> Size() override {
        // the open file knows only how long it was then; it may have grown
        const auto again = files_.Open(path_);
        if (!again.Ok()) return again.Why();
        return again.Value()->Size();
    }
    Status Close() override {
        file_.reset();
        return {};
    }

  private:
    Files& files_;
    std::string path_;
    std::unique_ptr<InputFile> file_;
};

}  // namespace

FolderHandheld::FolderHandheld(Files& files, std::string root)
    : files_(files), root_(std::move(root)) {}

bool FolderHandheld::Connected() { return !root_.empty() && files_.IsDirectory(root_); }

std::optional<std::string> FolderHandheld::Native(const std::string& path) const {
    std::string native = root_;
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find('\\', start), path.size());
        const std::string name = path.substr(start, end - start);
        start = end + 1;
        if (name.empty()) continue;
        // a name may come from the folder itself, where only this system's own rules hold
        if (name == "." || name == ".." || name.find('/') != std::string::npos) return std::nullopt;
        std::string entry = native;
        entry.append(1, files_.Separator()).append(name);
        if (!files_.Exists(entry)) {
            // what is wrong with a folder shows when the path is used
            const auto listed = NamesIn(native, Kind::kAny);
            const auto names = listed.Ok() ? listed.Value() : std::vector<std::string>();
            const auto other = std::find_if(names.begin(), names.end(), [&](const std::string& n) {
                return SameIgnoringCase(n, name);
            });
            if (other != names.end()) entry.replace(native.size() + 1, name.size(), *other);
        }
        native = std::move(entry);
    }
    return native;
}

Result<std::string> FolderHandheld::FindFirst(const std::string& pattern) {
    found_.clear();
    const std::size_t last = pattern.rfind('\\');
    if (last == std::string::npos) return NoMoreFiles();
    const auto folder = Native(pattern.substr(0, last));
    if (!folder) return OutsideTheFolder();
    auto names = NamesIn(*folder, Kind::kFiles);
    if (!names.Ok()) return names.Why();
    for (std::string& name : names.Value()) {
        // "\" may be part of a name here, but parts paths of a handheld
        const bool plain = name.find('\\') == std::string::npos;
        if (plain && MatchesPattern(name, pattern.substr(last + 1))) {
            found_.push_back(std::move(name));
        }
    }
    std::sort(found_.begin(), found_.end(), [](const std::string& a, const std::string& b) {
        const std::string lowerA = LowerCase(a);
        const std::string lowerB = LowerCase(b);
        return lowerA != lowerB ? lowerA > lowerB : a > b;
    });
    return FindNext();
}

Result<std::string> FolderHandheld::FindNext() {
    if (found_.empty()) return NoMoreFiles();
    std::string name = std::move(found_.back());
    found_.pop_back();
    return name;
}

Result<std::unique_ptr<HandheldFile>> FolderHandheld::Open(const std::string& path) {
    const auto native = Native(path);
    if (!native) return OutsideTheFolder();
    auto opened = files_.Open(*native);
    if (!opened.Ok()) return opened.Why();
    std::unique_ptr<HandheldFile> file =
        std::make_unique<FolderFile>(files_, *native, std::move(opened.Value()));
    return file;
}

bool FolderHandheld::IsFileOfPc(const std::string& path, const std::string& native) {
    const auto own = Native(path);
    return own && files_.SameFile(*own, native);
}

Status FolderHandheld::Delete(const std::string& path) {
    const auto native = Native(path);
    return native ? files_.Remove(*native) : Status(OutsideTheFolder());
}

Status FolderHandheld::Move(const std::string& from, const std::string& to) {
    const auto source = Native(from);
    const auto target = Native(to);
    if (!source || !target) return OutsideTheFolder();
    if (files_.Exists(*target)) return NameIsTaken();
    return files_.Move(*source, *target);
}

Status FolderHandheld::MakeFolder(const std::string& path) {
    const auto native = Native(path);
    return native ? files_.MakeDirectory(*native) : Status(OutsideTheFolder());
}

}  // namespace brask
