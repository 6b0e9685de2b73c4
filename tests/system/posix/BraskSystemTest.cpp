// What the programs do with the places and files that only this kind of system has.
#include <sys/stat.h>

#include "ProgramRunner.h"

namespace brask {
namespace {

class BraskOnPosix : public ProgramTest {};

TEST_F(BraskOnPosix, TheUsersOwnStoreIsAFileBelowTheConfiguration) {
    Run({"settings", "set", "GraphType", "2"});
    EXPECT_EQ(Read("config/VEK/Brask Lite.ini"), "[Brask Lite]\nGraphType=2\n");
    EXPECT_EQ(Run({"settings", "get", "GraphType"}).Out, "2\n");
    EXPECT_EQ(Run({"settings", "get", "GraphType", "--settings", At("other.ini")}).Out, "0\n");

    Write("config/VEK/Brask Lite.ini", "no setting\n");
    const Finished damaged = Run({"settings", "get", "GraphType"});
    EXPECT_EQ(damaged.Out, "0\n");
    EXPECT_NE(damaged.Error.find("Brask Lite.ini.bad"), std::string::npos) << damaged.Error;
    EXPECT_EQ(Read("config/VEK/Brask Lite.ini.bad"), "no setting\n");
    EXPECT_NE(Log().find("Brask Lite.ini.bad"), std::string::npos);
}

TEST_F(BraskOnPosix, WhatIsNoFileOrMissingIsNamedInTheSystemsWords) {
    ASSERT_EQ(mkfifo(At("pipe").c_str(), 0600), 0);
    const std::pair<const char*, const char*> cases[] = {
        {"missing.csv", "No such file or directory"}, {"pipe", "not a regular file"}};
    for (const auto& [name, reason] : cases) {
        EXPECT_EQ(MessagesOf(Json({"info", At(name)}, 1)).at(0),
                  "Cannot read " + At(name) + ": " + reason);
    }
    // the handheld is a folder, and nobody has named it
    EXPECT_EQ(Run({"retrieve"}).Error.rfind("Unable to connect to PocketPC\nNo handheld is set", 0),
              0U);
}

TEST_F(BraskOnPosix, AResultThatCannotBeWrittenIsAFailure) {
    const std::string file = Write("a.csv", DataLine("JAN-01-2003 00:05:12", "0.1", "26.1"));
    const Finished finished = Run({"list", file}, "/dev/full");
    EXPECT_EQ(finished.Status, 1);
    EXPECT_EQ(finished.Error, "brask: cannot write the result: No space left on device\n");
}

}  // namespace
}  // namespace brask
