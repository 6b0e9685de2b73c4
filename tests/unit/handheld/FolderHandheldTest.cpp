// The folder that stands for a handheld, on a real file system.
#include <fstream>

#include "../platform/FilesFixture.h"
#include "platform/FolderHandheld.h"
#include "platform/HandheldAddress.h"

namespace brask {
namespace {

using testing::ElementsAre;
namespace fs = std::filesystem;

class FolderHandheldTest : public FilesTest {
  protected:
    FolderHandheldTest() { fs::create_directories(root_ / "talvexPDA" / "Collections"); }

    void Write(const std::string& path) const { std::ofstream(root_ / path) << path; }
    std::vector<std::string> Found(const std::string& pattern) {
        std::vector<std::string> names;
        for (auto name = Handheld.FindFirst(pattern); name.Ok(); name = Handheld.FindNext()) {
            names.push_back(name.Value());
        }
        return names;
    }

    fs::path root_ = directory_;
    FolderHandheld Handheld{disk_, directory_};
};

TEST_F(FolderHandheldTest, LetterCaseDoesNotMatter) {
    const std::string folder = "talvexPDA/Collections/";
    for (const char* name : {"b.CSV", "A.csv", "c.Csv", "a.col", "x.csv.bak", "odd\\name.csv"}) {
        Write(folder + name);
    }
    fs::create_directory(root_ / folder / "folder.csv");
    EXPECT_TRUE(Handheld.Connected());
    EXPECT_THAT(Found("\\TalvexPDA\\collections\\*.csv"), ElementsAre("A.csv", "b.CSV", "c.Csv"));
    EXPECT_THAT(Found("\\TalvexPPC\\collections\\*.csv"), ElementsAre());
    EXPECT_EQ(Handheld.FindFirst("\\TalvexPPC\\collections\\*.csv").Why().Number, 0);
    // a file in a folder's place is no empty folder
    EXPECT_NE(Handheld.FindFirst("\\TalvexPDA\\collections\\a.csv\\*.csv").Why().Number, 0);
    auto file = Handheld.Open("\\TalvexPDA\\collections\\A.COL");
    ASSERT_TRUE(file.Ok());
    char bytes[100];
    const std::size_t length = file.Value()->Read(bytes).Value();
    EXPECT_EQ(std::string(bytes, length), folder + "a.col");
    EXPECT_TRUE(Handheld.Delete("\\TalvexPDA\\collections\\B.csv").Ok());
    EXPECT_FALSE(fs::exists(root_ / folder / "b.CSV"));
    const std::string twin = (root_ / "twin.csv").string();
    fs::create_hard_link(root_ / folder / "c.Csv", twin);
    EXPECT_TRUE(Handheld.IsFileOfPc("\\TalvexPDA\\collections\\C.csv", twin));
    EXPECT_FALSE(Handheld.IsFileOfPc("\\TalvexPDA\\collections\\A.csv", twin));
    // what is appended while it is open counts
    std::ofstream(root_ / folder / "a.col", std::ios::app) << "more";
    EXPECT_EQ(file.Value()->Size().Value(), length + 4);
    // of two that differ in letter case alone, the exact one
    Write(folder + "a.CSV");
    EXPECT_TRUE(Handheld.Delete("\\TALVEXPDA\\collections\\a.CSV").Ok());
    EXPECT_TRUE(fs::exists(root_ / folder / "A.csv"));
}

TEST_F(FolderHandheldTest, MovesNeverReplaceAndNothingLeavesTheFolder) {
    Write("one");
    Write("two");
    EXPECT_TRUE(Handheld.MakeFolder("\\VEK kept").Ok());
    EXPECT_TRUE(NameTaken(Handheld.MakeFolder("\\vek KEPT").Why()));
    EXPECT_TRUE(Handheld.Move("\\one", "\\VEK kept\\x").Ok());
    EXPECT_TRUE(NameTaken(Handheld.Move("\\two", "\\VEK kept\\X").Why()));
    EXPECT_TRUE(NothingThere(Handheld.Move("\\three", "\\VEK kept\\y").Why()));
    EXPECT_TRUE(NothingThere(Handheld.Delete("\\none\\file").Why()));
    for (const char* path : {"\\..\\two", "\\.\\two", "\\a/b"}) {
        EXPECT_FALSE(Handheld.Open(path).Ok());
        EXPECT_FALSE(Handheld.Delete(path).Ok());
        EXPECT_FALSE(Handheld.Move("\\two", path).Ok());
    }
    EXPECT_TRUE(fs::exists(root_ / "two"));
    EXPECT_FALSE(FolderHandheld(disk_, "").Connected());
    EXPECT_FALSE(FolderHandheld(disk_, (root_ / "two").string()).Connected());
}

TEST(HandheldAddress, FormsOfAnAddress) {
    // the folder, "-" for the real handheld, empty for wrong texts
    const std::pair<const char*, const char*> cases[] = {{"dir:/media/card", "/media/card"},
                                                         {"dir: x", " x"},
                                                         {"rapi", "-"},
                                                         {"dir:", ""},
                                                         {"RAPI", ""},
                                                         {"/media/card", ""}};
    for (const auto& [text, folder] : cases) {
        const auto address = ParseHandheldAddress(text);
        EXPECT_EQ(!address ? "" : address->Remote ? "-" : address->Folder, folder) << text;
    }
}

}  // namespace
}  // namespace brask
