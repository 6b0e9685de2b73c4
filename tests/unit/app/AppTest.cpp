// The window's services without a window.
#include <gmock/gmock.h>

#include <stdexcept>
#include <tuple>

#include "app/Commands.h"
#include "app/ProgramPaths.h"
#include "platform/simulated/MemoryFiles.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {
namespace {

using testing::ElementsAre;

class CommandsTest : public testing::Test {
  protected:
    EnglishTexts texts_;
    ScriptedUserInterface user_;
    Commands commands_{user_, texts_};
    int runs_ = 0;
};

TEST_F(CommandsTest, RunsOnlyWhatMayRunNow) {
    for (const char* name : {"mnuOpen", "mnuFileViewData", "mnuExit"}) {
        commands_.Register(name, [this] { ++runs_; });
    }
    // the command; whether there are readings, another runs, it is allowed: then it is enabled
    const std::tuple<const char*, bool, bool, bool, bool> cases[] = {
        {"mnuOpen", false, false, true, true},
        {"mnuOpen", false, true, true, false},
        {"mnuOpen", true, false, false, false},
        {"mnuFileViewData", false, false, true, false},
        {"mnuFileViewData", true, false, true, true},
        {"mnuFileViewData", true, true, true, false},
        {"mnuExit", false, true, true, true},
        {"mnuPrint", true, false, true, false},  // has no work yet
    };
    for (const auto& [name, readings, busy, allowed, enabled] : cases) {
        commands_.SetHasReadings(readings);
        commands_.SetBusy(busy);
        commands_.SetAllowed(name, allowed);
        EXPECT_EQ(commands_.Enabled(name), enabled) << name;
        runs_ = 0;
        commands_.Run(name);
        EXPECT_EQ(runs_, enabled ? 1 : 0) << name;
    }
}

TEST_F(CommandsTest, AnUnexpectedErrorIsShownAndCancelEndsTheProgram) {
    commands_.Register("mnuOpen", [this] {
        commands_.SetBusy(true);
        throw std::runtime_error("out of paper");
    });
    user_.Answers = {true, false};
    commands_.Run("mnuOpen");
    EXPECT_FALSE(user_.Ended());
    EXPECT_FALSE(commands_.Busy()) << "a failed command must not lock all others";
    commands_.Run("mnuOpen");
    EXPECT_TRUE(user_.Ended());
    EXPECT_EQ(user_.Shown.at(0).Title, "mnuOpen Error");
    EXPECT_EQ(user_.Shown[0].Text,
              "Error Description:out of paper\r\n[mnuOpen]\r\n(Cancel Ends Program)");
}

TEST_F(CommandsTest, LimitButtonSwitchesTheDisplayAndUnknownOnesAreTold) {
    commands_.Register("mnuUseToleranceCurves", [this] { ++runs_; });
    commands_.ToolbarButtonClick("Tolerance");
    EXPECT_EQ(runs_, 1);
    commands_.ToolbarButtonClick("tolerance");
    EXPECT_THAT(user_.ShownTexts(),
                ElementsAre("Command For Button tolerance\r\nIs Not Implemented Yet"));
}

TEST(ProgramPaths, HelpFileLiesBesideTheProgramOrInTheInstalledTree) {
    EXPECT_EQ(HelpFilePath("/opt/brask", '/'), "/opt/brask/BraskLite.chm");
    EXPECT_EQ(HelpFilePath("C:\\Program Files\\TALVEX k42 PC", '\\'),
              "C:\\Program Files\\TALVEX k42 PC\\HtmlHelp\\brasklite\\htmlhelp\\BraskLite.chm");
}

}  // namespace
}  // namespace brask
