#include <windows.h>

#include <chrono>

#include "FilesFixture.h"
#include "platform/windows/WindowsFiles.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

class WindowsFilesTest : public FilesTest {};

TEST_F(WindowsFilesTest, AnyNameAndAnyLengthOfPathWorks) {
    std::string deep = directory_;
    // beyond the 260 characters that the plain form of a path may have
    for (int i = 0; i < 8; ++i) deep += "\\" + std::string(60, static_cast<char>('a' + i));
    for (const std::string& directory : {directory_, deep}) {
        ASSERT_TRUE(disk_.MakeDirectoryChain(directory).Ok());
        const std::string file = directory + "/Z\xC3\xBCrich \xE6\xB8\xAC \xF0\x9F\x98\x80.csv";
        ASSERT_TRUE(WriteWholeFile(disk_, file, "1").Ok());
        ASSERT_TRUE(disk_.Append(file, "2").Ok());
        ASSERT_TRUE(disk_.CopyToNew(file, file + ".copy").Ok());
        ASSERT_TRUE(disk_.Move(file + ".copy", file).Ok());
        EXPECT_EQ(Content(file), "12");
        std::string plain = file;
        plain[directory.size()] = '\\';
        EXPECT_EQ(disk_.Absolute(file), plain);
        EXPECT_TRUE(disk_.Exists(file) && disk_.IsDirectory(directory));
        EXPECT_TRUE(disk_.Remove(file).Ok());
    }
    // the cleaning up that all tests have does not know long paths
    for (; deep != directory_; deep.erase(deep.find_last_of('\\'))) {
        EXPECT_NE(RemoveDirectoryW(windows::NativePath(deep).c_str()), 0);
    }
}

TEST_F(WindowsFilesTest, DevicesAreNoFilesInWhateverDirectory) {
    for (const char* device : {"NUL", "con", "COM1", "\\\\.\\pipe\\x"}) {
        EXPECT_EQ(ErrorOf(disk_.Open(device)), 0) << device;
        EXPECT_EQ(ErrorOf(disk_.Replace(device)), 0) << device;
        EXPECT_EQ(ErrorOf(disk_.Append(device, "x")), 0) << device;
    }
}

TEST_F(WindowsFilesTest, AFileThatIsBeingReadCanBeReplacedAndRemoved) {
    const std::string path = Make("file", "old");
    auto reading = disk_.Open(path);
    ASSERT_TRUE(reading.Ok());
    ASSERT_TRUE(disk_.Append(path, "er").Ok());
    ASSERT_TRUE(disk_.Move(path, At("moved")).Ok());
    char buffer[8];
    EXPECT_EQ(reading.Value()->Read(buffer).Value(), 5U);
}

TEST_F(WindowsFilesTest, AReadOnlyFileIsRefusedBeforeAnythingIsWritten) {
    const std::string path = Make("file", "old");
    const auto writable = std::filesystem::status(path).permissions();
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_GT(ErrorOf(disk_.Replace(path)), 0);
    EXPECT_EQ(Content(path), "old");
    EXPECT_THAT(Names(), testing::ElementsAre("file"));
    std::filesystem::permissions(path, writable);
}

TEST_F(WindowsFilesTest, TheLockHoldsOffOthers) {
    auto held = disk_.Lock(At("lock"));
    ASSERT_TRUE(held.Ok());
    EXPECT_FALSE(WindowsFiles(std::chrono::milliseconds(0)).Lock(At("lock")).Ok());
    held = Error{0, "given back"};
    EXPECT_TRUE(disk_.Lock(At("lock")).Ok());
}

TEST_F(WindowsFilesTest, FoldersAreThoseOfTheSystem) {
    EXPECT_EQ(disk_.Folder(KnownFolder::kLog), "C:");
    EXPECT_EQ(disk_.Folder(KnownFolder::kDocumentsMissing), "c:\\program files");
    EXPECT_TRUE(disk_.MakeDirectoryChain("C:").Ok());
    for (const auto folder : {KnownFolder::kUserDocuments, KnownFolder::kSharedDocuments,
                              KnownFolder::kSettings, KnownFolder::kState}) {
        EXPECT_TRUE(disk_.IsDirectory(disk_.Folder(folder))) << static_cast<int>(folder);
    }
    EXPECT_NE(disk_.Folder(KnownFolder::kUserDocuments),
              disk_.Folder(KnownFolder::kSharedDocuments));
}

}  // namespace
}  // namespace brask
