#include "platform/simulated/MemoryFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace brask {
namespace {

Error SystemError(int number) { return {number, std::strerror(number)}; }

class MemoryInputFile final : public InputFile {
  public:
    MemoryInputFile(MemoryFiles& disk, std::string content)
        : disk_(disk), content_(std::move(content)) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        if (Status step = disk_.Step(); !step.Ok()) return step.Why();
        const std::size_t length = std::min(buffer.size(), content_.size() - position_);
        std::memcpy(buffer.data(), content_.data() + position_, length);
        position_ += length;
        return length;
    }
    std::uint64_t Size() const override { return content_.size(); }

  private:
    MemoryFiles& disk_;
    std::string content_;
    std::size_t position_ = 0;
};

class MemoryReplacementFile final : public ReplacementFile {
  public:
    MemoryReplacementFile(MemoryFiles& disk, std::string path)
        : disk_(disk), path_(std::move(path)) {}

    Status Write(std::string_view bytes) override {
        if (Status step = disk_.Step(); !step.Ok()) return step;
        written_ += bytes;
        return {};
    }
    Status Commit() override {
        if (Status step = disk_.Step(); !step.Ok()) return step;
        // only now, so that a test sees the old content when an earlier step fails
        disk_.Contents[path_] = written_;
        return {};
    }

  private:
    MemoryFiles& disk_;
    std::string path_;
    std::string written_;
};

}  // namespace

Status MemoryFiles::Step() {
    // counted also when it fails, so that a number always means the same operation
    const int number = Operations++;
    const bool fails = FailAt >= 0 && (number == FailAt || (FailForGood && number > FailAt));
    return fails ? Status(SystemError(EIO)) : Status();
}

Result<std::unique_ptr<InputFile>> MemoryFiles::Open(const std::string& path) {
    if (Status step = Step(); !step.Ok()) return step.Why();
    if (Directories.contains(path)) return SystemError(EISDIR);
    const auto found = Contents.find(path);
    if (found == Contents.end()) return SystemError(ENOENT);
    std::unique_ptr<InputFile> file = std::make_unique<MemoryInputFile>(*this, found->second);
    return file;
}

Result<std::unique_ptr<ReplacementFile>> MemoryFiles::Replace(const std::string& path) {
    if (Status step = Step(); !step.Ok()) return step.Why();
    if (Directories.contains(path)) return SystemError(EISDIR);
    std::unique_ptr<ReplacementFile> file = std::make_unique<MemoryReplacementFile>(*this, path);
    return file;
}

Status MemoryFiles::Append(const std::string& path, std::string_view bytes) {
    if (Status step = Step(); !step.Ok()) return step;
    Contents[path] += bytes;
    return {};
}

Status MemoryFiles::Flush(const std::string& path) {
    if (Status step = Step(); !step.Ok()) return step;
    if (!Contents.contains(path)) return SystemError(ENOENT);
    Flushed[path] = Contents[path].size();
    return {};
}

Result<std::string> MemoryFiles::CreateTemporary(const std::string& namePrefix) {
    if (Status step = Step(); !step.Ok()) {
        return Error{step.Why().Number, "/tmp: " + step.Why().Reason};
    }
    const std::string path = "/tmp/" + namePrefix + std::to_string(Operations);
    Contents[path] = "";
    return path;
}

Status MemoryFiles::CopyToNew(const std::string& source, const std::string& target) {
    if (Status step = Step(); !step.Ok()) return step;
    if (!Contents.contains(source)) return SystemError(ENOENT);
    if (Exists(target)) return SystemError(EEXIST);
    Contents[target] = Contents[source];
    return {};
}

Status MemoryFiles::Move(const std::string& source, const std::string& target) {
    if (Status step = Step(); !step.Ok()) return step;
    if (NoMove) return SystemError(EXDEV);
    const auto found = Contents.find(source);
    if (found == Contents.end()) return SystemError(ENOENT);
    // taken out first: source and target may be the same path
    std::string content = std::move(found->second);
    Contents.erase(found);
    Contents[target] = std::move(content);
    return {};
}

Status MemoryFiles::Remove(const std::string& path) {
    if (Status step = Step(); !step.Ok()) return step;
    return Contents.erase(path) == 1 ? Status() : Status(SystemError(ENOENT));
}

Status MemoryFiles::MakeDirectory(const std::string& path) {
    if (Status step = Step(); !step.Ok()) return step;
    if (Exists(path)) return SystemError(EEXIST);
    const std::string parent = path.substr(0, path.find_last_of('/'));
    if (!parent.empty() && !IsDirectory(parent)) return SystemError(ENOENT);
    Directories.insert(path);
    return {};
}

Status MemoryFiles::MakeDirectoryChain(const std::string& path) {
    if (Status step = Step(); !step.Ok()) return step;
    for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string part = path.substr(0, slash);
        if (Contents.contains(part)) return SystemError(ENOTDIR);
        if (!part.empty()) Directories.insert(part);
        if (slash == std::string::npos) return {};
    }
}

bool MemoryFiles::Exists(const std::string& path) const {
    return Contents.contains(path) || Directories.contains(path);
}

bool MemoryFiles::IsDirectory(const std::string& path) const { return Directories.contains(path); }

Result<std::unique_ptr<FileLock>> MemoryFiles::Lock(const std::string&) {
    if (Status step = Step(); !step.Ok()) return step.Why();
    return std::make_unique<FileLock>();
}

std::string MemoryFiles::Folder(KnownFolder folder) const {
    static constexpr const char* kNames[] = {"documents", "shared", "missing",
                                             "settings",  "state",  "log"};
    return std::string("/home/") + kNames[static_cast<int>(folder)];
}

}  // namespace brask
