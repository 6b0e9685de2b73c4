#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

#include "FilesFixture.h"
#include "platform/posix/PosixFiles.h"

namespace brask {
namespace {

namespace fs = std::filesystem;

class PosixFilesTest : public FilesTest {};

TEST_F(PosixFilesTest, OnlyRegularFilesAreOpenedOrReplacedAndNothingWaits) {
    ASSERT_EQ(::mkfifo(At("pipe").c_str(), 0600), 0);
    fs::create_symlink("nowhere", At("dangling"));
    EXPECT_EQ(ErrorOf(disk_.CopyToNew("/proc/self/maps", At("dangling"))), EEXIST);
    const std::pair<std::string, int> cases[] = {
        {directory_, EISDIR}, {At("pipe"), 0}, {"/dev/zero", 0}, {At("none/file"), ENOENT}};
    for (const auto& [path, error] : cases) {
        EXPECT_EQ(ErrorOf(disk_.Open(path)), error) << path;
        EXPECT_EQ(ErrorOf(disk_.Replace(path)), error) << path;
        EXPECT_NE(ErrorOf(disk_.CopyToNew(path, At("copy"))), -1) << path;
    }
    EXPECT_THAT(Names(), testing::UnorderedElementsAre("pipe", "dangling"));
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
