#include "ProgramRunner.h"

namespace brask {
namespace {

namespace fs = std::filesystem;

class BraskRetrieve : public ProgramTest {
  protected:
    // A card with two data files, one of them with a companion.
    BraskRetrieve() {
        fs::create_directories(At("card/TalvexPDA/Collections"));
        fs::create_directories(At("card/talvexppc/collections"));
        Write("card/TalvexPDA/Collections/Run 2.CSV", "two");
        Write("card/TalvexPDA/Collections/run 2.COL", "two's companion");
        Write("card/talvexppc/collections/Run 1.csv", "one");
    }
    std::vector<std::string> Retrieve() const {
        return {"retrieve", "--root", At("pc"), "--handheld", "dir:" + At("card")};
    }
};

TEST_F(BraskRetrieve, EmptiesACardAndSaysWhereEverythingIs) {
    const auto document = Json(Retrieve());
    EXPECT_EQ(KeysOf(document), "files opened messages");
    ASSERT_EQ(document["files"].Size(), 2U);
    EXPECT_EQ(KeysOf(document["files"][0]), "name downloaded deleted status");
    EXPECT_STREQ(document["files"][0]["name"].GetString(), "Run 2.CSV");
    EXPECT_TRUE(document["files"][0]["downloaded"].IsTrue());
    EXPECT_TRUE(document["files"][0]["deleted"].IsTrue());
    const std::string status = document["files"][0]["status"].GetString();
    const std::string words = "Run 2.col was kept as ";
    ASSERT_EQ(status.rfind(words, 0), 0U) << status;
    EXPECT_EQ(Read(status.substr(words.size())), "two's companion");
    EXPECT_EQ(document["opened"].GetString(), At("pc/VEK/From PocketPC/Run 2.CSV"));
    EXPECT_EQ(Read("pc/VEK/From PocketPC/Run 2.CSV"), "two");
    EXPECT_EQ(Read("pc/VEK/From PocketPC/Run 1.csv"), "one");
    EXPECT_TRUE(MessagesOf(document).empty());
    EXPECT_EQ(Listing().find("card/TalvexPDA/Collections/"), std::string::npos) << Listing();

    // empty now; that is done, too, also by the stored address
    EXPECT_EQ(Run({"settings", "set", "HandheldAddress", "dir:" + At("card")}).Status, 0);
    const auto again = Json({"retrieve", "--root", At("pc")});
    EXPECT_EQ(again["files"].Size(), 0U);
    EXPECT_TRUE(again["opened"].IsNull());
    EXPECT_EQ(MessagesOf(again), std::vector<std::string>{"No Data Files Found on this PocketPC"});
}

TEST_F(BraskRetrieve, WithoutAHandheldNothingIsDone) {
    struct End {
        std::vector<std::string> Arguments;
        int Status;
        std::string Text;
    };
    const std::string noSync =
        "Is ActiveSync (Or other PocketPC Sync Software) Installed?\n"
        "Please install a Synchronization Program before accessing a "
        "PocketPC\n";
    const std::vector<End> ends = {
        {{"retrieve", "--handheld", "dir:" + At("none")},
         1,
         "Unable to connect to PocketPC\nThere is no folder " + At("none") + ". Connect"},
        {{"retrieve", "--handheld", "rapi"}, 1, noSync},
        {{"retrieve", "--handheld", "usb"},
         2,
         "brask: option --handheld: usb is neither rapi nor dir:PATH\n"},
        {{"retrieve", "--handheld", "rapi", "--yes"}, 1, "Type mismatch"}};
    for (const End& end : ends) {
        const Finished finished = Run(end.Arguments);
        EXPECT_EQ(finished.Status, end.Status) << finished.Error;
        EXPECT_NE(finished.Error.find(end.Text), std::string::npos) << finished.Error;
        EXPECT_EQ(finished.Out, "");
    }
}

}  // namespace
}  // namespace brask
