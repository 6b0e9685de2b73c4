#include <tuple>

#include "ProgramRunner.h"

namespace brask {
namespace {

class BraskRetrieve : public ProgramTest {
  protected:
    // A card with two data files, one of them with a companion; the PC has the name of the other.
    BraskRetrieve() {
        Write("card/TalvexPDA/Collections/Run 2.CSV", "two");
        Write("card/TalvexPDA/Collections/run 2.COL", "two's companion");
        Write("card/talvexppc/collections/Run 1.csv", "one");
        Write("pc/VEK/From PocketPC/Run 1.csv", "older");
    }
};

TEST_F(BraskRetrieve, EmptiesACardAndSaysWhereEverythingIs) {
    const auto document = Json({"retrieve", "--root", At("pc"), "--handheld", "dir:" + At("card")});
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
    const std::string index = Read("pc/VEK/.recovery/index.txt");
    const std::string line = index.substr(index.find("Run 1.csv\treplaced") - 20, 29);
    EXPECT_EQ(Read("pc/VEK/.recovery/" + line), "older") << index;
    EXPECT_TRUE(MessagesOf(document).empty());
    EXPECT_EQ(Listing().find("card/TalvexPDA/Collections/"), std::string::npos) << Listing();

    // by the stored address, in words
    EXPECT_EQ(Run({"settings", "set", "HandheldAddress", "dir:" + At("card")}).Status, 0);
    Write("card/talvexppc/collections/Run 3.csv", "three");
    const std::string told = Run({"retrieve", "--root", At("pc")}).Out;
    EXPECT_NE(told.find("Run 3.csv: downloaded: yes, deleted on the handheld: yes\n"), told.npos);

    // empty now; that is done, too
    const auto again = Json({"retrieve", "--root", At("pc")});
    EXPECT_EQ(again["files"].Size(), 0U);
    EXPECT_TRUE(again["opened"].IsNull());
    EXPECT_EQ(MessagesOf(again), std::vector<std::string>{"No Data Files Found on this PocketPC"});
}

TEST_F(BraskRetrieve, WithoutAHandheldNothingIsDone) {
    using Case = std::tuple<std::vector<std::string>, int, std::string>;
    const Case cases[] = {
        {{"--handheld", "dir:" + At("none")},
         1,
         "Unable to connect to PocketPC\nThere is no folder " + At("none")},
        {{"--handheld", "rapi"}, 1, "Please install a Synchronization Program before accessing a "},
        {{"--handheld", "usb"}, 2, "option --handheld: usb is neither rapi nor dir:PATH\n"},
        {{"--handheld", "rapi", "--yes"}, 1, "Type mismatch"}};
    for (auto [arguments, status, text] : cases) {
        arguments.insert(arguments.begin(), "retrieve");
        const Finished finished = Run(arguments);
        EXPECT_EQ(finished.Status, status) << finished.Error;
        EXPECT_NE(finished.Error.find(text), std::string::npos) << finished.Error;
    }
}

}  // namespace
}  // namespace brask
