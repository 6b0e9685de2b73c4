#include "platform/simulated/ScriptedHandheld.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace brask {
namespace {

using Fault = ScriptedHandheld::Fault;

Error Missing() { return {ENOENT, "no such file"}; }

class ScriptedFile final : public HandheldFile {
  public:
    ScriptedFile(ScriptedHandheld& handheld, std::string content)
        : handheld_(handheld), content_(std::move(content)) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        if (handheld_.Fails()) {
            if (handheld_.How != Fault::kSilent) return handheld_.Refusal();
            return std::size_t{0};
        }
        const std::size_t length = std::min(buffer.size(), content_.size() - position_);
        std::memcpy(buffer.data(), content_.data() + position_, length);
        position_ += length;
        return length;
    }
    Result<std::uint64_t> Size() override {
        if (handheld_.Fails()) return handheld_.Refusal();
        return std::uint64_t{content_.size()};
    }
    Status Close() override { return handheld_.Fails() ? Status(handheld_.Refusal()) : Status(); }

  private:
    ScriptedHandheld& handheld_;
    std::string content_;
    std::size_t position_ = 0;
};

}  // namespace

bool ScriptedHandheld::Fails() {
    const int number = Operations++;
    return FailAt >= 0 && (number == FailAt || (FailForGood && number > FailAt));
}

Error ScriptedHandheld::Refusal() const {
    return How == Fault::kNothing ? Missing() : Error{EIO, "the link broke"};
}

Status ScriptedHandheld::Initialise() {
    return Initialises ? Status() : Status(Error{0, "no library"});
}

Result<std::string> ScriptedHandheld::FindFirst(const std::string& pattern) {
    found_.clear();
    if (Fails()) return Refusal();
    const std::string folder = pattern.substr(0, pattern.rfind('\\') + 1);
    const std::string ending = pattern.substr(pattern.rfind('*') + 1);
    for (const auto& [path, bytes] : Contents) {
        if (path.starts_with(folder) && path.ends_with(ending)) {
            found_.push_back(path.substr(folder.size()));
        }
    }
    std::reverse(found_.begin(), found_.end());
    if (found_.empty()) return Error{0, "There are No More Files."};
    std::string name = found_.back();
    found_.pop_back();
    return name;
}

Result<std::string> ScriptedHandheld::FindNext() {
    if (Fails()) return Refusal();
    if (found_.empty()) return Error{0, "There are No More Files."};
    std::string name = found_.back();
    found_.pop_back();
    return name;
}

Result<std::unique_ptr<HandheldFile>> ScriptedHandheld::Open(const std::string& path) {
    if (Fails()) return Refusal();
    const auto found = Contents.find(path);
    if (found == Contents.end()) return Missing();
    std::unique_ptr<HandheldFile> file = std::make_unique<ScriptedFile>(*this, found->second);
    return file;
}

Status ScriptedHandheld::Delete(const std::string& path) {
    const bool fails = Fails();
    if (fails && How != Fault::kDoneOnly) return Refusal();
    if (Contents.erase(path) == 0) return Missing();
    return fails ? Status(Refusal()) : Status();
}

Status ScriptedHandheld::Move(const std::string& from, const std::string& to) {
    const bool fails = Fails();
    if (fails && How != Fault::kDoneOnly) return Refusal();
    const auto source = Contents.find(from);
    if (source == Contents.end()) return Missing();
    if (!Folders.contains(to.substr(0, to.rfind('\\')))) return Missing();
    if (Contents.contains(to)) return Error{EEXIST, "the name is taken"};
    Contents[to] = source->second;
    Contents.erase(from);
    return fails ? Status(Refusal()) : Status();
}

Status ScriptedHandheld::MakeFolder(const std::string& path) {
    const bool fails = Fails();
    if (fails && How != Fault::kDoneOnly) return Refusal();
    if (!Folders.insert(path).second) return Error{EEXIST, "the name is taken"};
    return fails ? Status(Refusal()) : Status();
}

}  // namespace brask
