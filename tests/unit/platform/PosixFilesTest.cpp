#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

#include "platform/posix/PosixFiles.h"

namespace brask {
namespace {

namespace fs = std::filesystem;

// A directory of the test's own, gone at its end.
class PosixFilesTest : public testing::Test {
  protected:
    PosixFilesTest() {
        std::string path = (fs::temp_directory_path() / "brask-test-XXXXXX").string();
        directory_ = ::mkdtemp(path.data());
    }
    ~PosixFilesTest() override { fs::remove_all(directory_); }

    std::string At(const std::string& name) const { return directory_ + "/" + name; }
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
        for (const auto& entry : fs::directory_iterator(directory_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    PosixFiles disk_;
    std::string directory_;
};

int ErrorOf(const auto& result) { return result.Ok() ? -1 : result.Why().Number; }

TEST_F(PosixFilesTest, OnlyRegularFilesAreOpenedOrReplacedAndNothingWaits) {
    ASSERT_EQ(::mkfifo(At("pipe").c_str(), 0600), 0);
    const std::pair<std::string, int> cases[] = {
        {directory_, EISDIR}, {At("pipe"), 0}, {"/dev/zero", 0}, {At("none/file"), ENOENT}};
    for (const auto& [path, error] : cases) {
        EXPECT_EQ(ErrorOf(disk_.Open(path)), error) << path;
        EXPECT_EQ(ErrorOf(disk_.Replace(path)), error) << path;
        EXPECT_NE(ErrorOf(disk_.CopyToNew(path, At("copy"))), -1) << path;
    }
    EXPECT_THAT(Names(), testing::UnorderedElementsAre("pipe"));
}

TEST_F(PosixFilesTest, ReadingFillsTheBufferAndStopsAtTheLimit) {
    const std::string path = Make("file", "0123456789");
    auto file = disk_.Open(path);
    ASSERT_TRUE(file.Ok());
    char buffer[8];
    for (const std::size_t length : {8U, 2U, 0U}) {
        EXPECT_EQ(file.Value()->Read(buffer).Value(), length);
    }
    EXPECT_EQ(ReadWholeFile(disk_, path, 10).Value(), "0123456789");
    EXPECT_EQ(ErrorOf(ReadWholeFile(disk_, path, 9)), EFBIG);
    // a file of the kernel says that it is empty, and is not
    EXPECT_GT(ReadWholeFile(disk_, "/proc/self/maps", 1 << 20).Value().size(), 100U);
}

TEST_F(PosixFilesTest, ReplacingKeepsPermissionsAndFollowsLinks) {
    const std::string path = Make("file", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    fs::create_symlink("file", At("link"));
    ASSERT_TRUE(WriteWholeFile(disk_, At("link"), "new").Ok());
    EXPECT_TRUE(fs::is_symlink(At("link")));
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(fs::status(path).permissions(), static_cast<fs::perms>(0640));

    const mode_t mask = ::umask(027);
    ASSERT_TRUE(WriteWholeFile(disk_, At("fresh"), "x").Ok());
    ::umask(mask);
    EXPECT_EQ(fs::status(At("fresh")).permissions(), static_cast<fs::perms>(0640));
    EXPECT_THAT(Names(), testing::UnorderedElementsAre("file", "link", "fresh"));
}

TEST_F(PosixFilesTest, TheOldFileStandsUntilCommitAndAnAbandonedOneLeavesNothing) {
    const std::string path = Make("file", "old");
    {
        auto started = disk_.Replace(path);
        ASSERT_TRUE(started.Value()->Write(std::string(1 << 20, 'x')).Ok());
        EXPECT_EQ(Content(path), "old");
    }
    EXPECT_EQ(Content(path), "old");
    EXPECT_THAT(Names(), testing::ElementsAre("file"));
}

TEST_F(PosixFilesTest, CopyToNewRefusesWhateverStandsThere) {
    const std::string bytes = std::string(700000, 'a') + std::string("\0\r\n\xFF", 4);
    const std::string source = Make("source", bytes);
    const std::string existing = Make("existing", "mine");
    fs::create_symlink("nowhere", At("dangling"));
    ASSERT_TRUE(disk_.CopyToNew(source, At("copy")).Ok());
    EXPECT_EQ(Content(At("copy")), bytes);
    for (const char* name : {"existing", "dangling", "source", "copy"}) {
        EXPECT_EQ(ErrorOf(disk_.CopyToNew(source, At(name))), EEXIST) << name;
    }
    EXPECT_EQ(Content(existing), "mine");
    EXPECT_EQ(Content(source), bytes);
    EXPECT_THAT(Names(), testing::UnorderedElementsAre("source", "existing", "dangling", "copy"));
}

TEST_F(PosixFilesTest, DirectoryChains) {
    ASSERT_TRUE(disk_.MakeDirectoryChain(At("a/b/c")).Ok());
    EXPECT_TRUE(disk_.MakeDirectoryChain(At("a/b/c")).Ok());
    const std::string file = Make("file", "");
    EXPECT_NE(ErrorOf(disk_.MakeDirectoryChain(file)), -1);
    EXPECT_NE(ErrorOf(disk_.MakeDirectoryChain(file + "/below")), -1);
}

TEST_F(PosixFilesTest, TheLockHoldsOffOthersAndDiesWithItsHolder) {
    const std::string path = At("lock");
    const pid_t child = ::fork();
    if (child == 0) {
        auto held = disk_.Lock(path);
        std::_Exit(held.Ok() ? 0 : 1);  // without letting go of it
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    auto held = disk_.Lock(path);
    ASSERT_TRUE(held.Ok());
    EXPECT_FALSE(PosixFiles(std::chrono::milliseconds(0)).Lock(path).Ok());
    held = Error{0, "given back"};
    EXPECT_TRUE(disk_.Lock(path).Ok());
}

}  // namespace
}  // namespace brask
