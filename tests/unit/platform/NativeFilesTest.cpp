// What holds for files on every system.
#include <cerrno>

#include "FilesFixture.h"

namespace brask {
namespace {

class NativeFiles : public FilesTest {};

TEST_F(NativeFiles, WhatIsNotThereHasOneNumber) {
    for (const char* name : {"none", "none/file"}) {
        EXPECT_EQ(ErrorOf(disk_.Open(At(name))), ENOENT) << name;
        EXPECT_FALSE(disk_.Exists(At(name))) << name;
    }
    EXPECT_NE(ErrorOf(disk_.Open(directory_)), -1);
    EXPECT_NE(ErrorOf(disk_.Replace(directory_)), -1);
    EXPECT_NE(ErrorOf(disk_.Append(directory_, "x")), -1);
    EXPECT_NE(ErrorOf(disk_.Remove(At("none"))), -1);
}

TEST_F(NativeFiles, ReadingFillsTheBufferAndStopsAtTheLimit) {
    const std::string path = Make("file", "01234");
    Make("file", "56789");
    auto file = disk_.Open(path);
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value()->Size(), 10U);
    char buffer[8];
    for (const std::size_t length : {8U, 2U, 0U}) {
        EXPECT_EQ(file.Value()->Read(buffer).Value(), length);
    }
    EXPECT_EQ(ReadWholeFile(disk_, path, 10).Value(), "0123456789");
    EXPECT_EQ(ErrorOf(ReadWholeFile(disk_, path, 9)), EFBIG);
}

TEST_F(NativeFiles, TheOldFileStandsUntilCommitAndAnAbandonedOneLeavesNothing) {
    const std::string path = Make("file", "old");
    {
        auto started = disk_.Replace(path);
        ASSERT_TRUE(started.Value()->Write(std::string(1 << 20, 'x')).Ok());
        EXPECT_EQ(Content(path), "old");
    }
    EXPECT_EQ(Content(path), "old");
    ASSERT_TRUE(WriteWholeFile(disk_, path, "new").Ok());
    EXPECT_EQ(Content(path), "new");
    EXPECT_THAT(Names(), testing::ElementsAre("file"));
}

TEST_F(NativeFiles, CopyToNewRefusesWhateverStandsThere) {
    const std::string bytes = std::string(700000, 'a') + std::string("\0\r\n\xFF", 4);
    const std::string source = Make("source", bytes);
    const std::string existing = Make("existing", "mine");
    ASSERT_TRUE(disk_.CopyToNew(source, At("copy")).Ok());
    EXPECT_EQ(Content(At("copy")), bytes);
    for (const char* name : {"existing", "source", "copy"}) {
        EXPECT_GT(ErrorOf(disk_.CopyToNew(source, At(name))), 0) << name;
    }
    EXPECT_EQ(ErrorOf(disk_.CopyToNew(At("none"), At("other"))), ENOENT);
    EXPECT_EQ(Content(existing), "mine");
    EXPECT_EQ(Content(source), bytes);
    EXPECT_THAT(Names(), testing::UnorderedElementsAre("source", "existing", "copy"));
}

TEST_F(NativeFiles, MovingReplacesAndKnowsOneFileUnderTwoNames) {
    const std::string file = Make("file", "new");
    ASSERT_TRUE(disk_.Move(file, Make("other", "old")).Ok());
    EXPECT_EQ(Content(At("other")), "new");
    EXPECT_FALSE(disk_.Exists(file));
    std::filesystem::create_hard_link(At("other"), At("link"));
    EXPECT_TRUE(disk_.SameFile(At("other"), At("link")));
    EXPECT_FALSE(disk_.SameFile(At("other"), Make("third", "new")));
    EXPECT_FALSE(disk_.SameFile(At("none"), At("none")));
}

TEST_F(NativeFiles, DirectoryChains) {
    ASSERT_TRUE(disk_.MakeDirectoryChain(At("a/b/c")).Ok());
    EXPECT_TRUE(disk_.IsDirectory(At("a/b/c")));
    EXPECT_TRUE(disk_.MakeDirectoryChain(At("a/b/c/")).Ok());
    EXPECT_NE(ErrorOf(disk_.MakeDirectory(At("a"))), -1);
    const std::string file = Make("file", "");
    EXPECT_FALSE(disk_.IsDirectory(file));
    EXPECT_NE(ErrorOf(disk_.MakeDirectoryChain(file)), -1);
    EXPECT_NE(ErrorOf(disk_.MakeDirectoryChain(file + "/below")), -1);
}

TEST_F(NativeFiles, AbsolutePathsLoseTheirDetours) {
    const std::string file = Make("file", "");
    EXPECT_EQ(disk_.Absolute(At("a/../file")), file);
    EXPECT_TRUE(disk_.Absolute("file").ends_with(std::string(1, disk_.Separator()) + "file"));
}

}  // namespace
}  // namespace brask
