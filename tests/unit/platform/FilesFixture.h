// A directory of the test's own on the real disk, gone at its end.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/NativeSystem.h"

namespace brask {

class FilesTest : public testing::Test {
  protected:
    FilesTest() : directory_(disk_.CreateTemporary("brask-test-").Value()) {
        // the name is ours; now it becomes a directory's
        std::filesystem::remove(directory_);
        std::filesystem::create_directory(directory_);
    }
    ~FilesTest() override { std::filesystem::remove_all(directory_); }

    std::string At(const std::string& name) const { return directory_ + disk_.Separator() + name; }
    std::string Make(const std::string& name, const std::string& content) {
        EXPECT_TRUE(disk_.Append(At(name), content).Ok());
        return At(name);
    }
    std::string Content(const std::string& path) {
        auto content = ReadWholeFile(disk_, path, 1 << 20);
        return content.Ok() ? content.Value() : "unreadable: " + content.Why().Reason;
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    NativeSystem system_;
    Files& disk_ = system_.Disk();
    std::string directory_;
};

// What was written to a temporary file.
inline std::string WrittenTo(std::FILE* file) {
    std::string text(static_cast<std::size_t>(std::ftell(file)), '\0');
    std::rewind(file);
    text.resize(std::fread(text.data(), 1, text.size(), file));
    return text;
}

// The number of the error; -1 for success.
int ErrorOf(const auto& result) { return result.Ok() ? -1 : result.Why().Number; }

}  // namespace brask
