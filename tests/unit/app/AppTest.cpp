// The window's services without a window.
#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

#include "app/Commands.h"
#include "app/MenuTable.h"
#include "app/ProgramPaths.h"
#include "app/ToolbarTable.h"
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
    const struct {
        const char* Name;
        bool Readings;
        bool Busy;
        bool Allowed;
        bool Enabled;
    } cases[] = {
        {"mnuOpen", false, false, true, true},
        {"mnuOpen", false, true, true, false},
        {"mnuOpen", true, false, false, false},
        {"mnuFileViewData", false, false, true, false},
        {"mnuFileViewData", true, false, true, true},
        {"mnuFileViewData", true, true, true, false},
        {"mnuExit", false, true, true, true},
        {"mnuPrint", true, false, true, false},  // has no work yet
    };
    for (const auto& one : cases) {
        commands_.SetHasReadings(one.Readings);
        commands_.SetBusy(one.Busy);
        commands_.SetAllowed(one.Name, one.Allowed);
        EXPECT_EQ(commands_.Enabled(one.Name), one.Enabled) << one.Name;
        runs_ = 0;
        commands_.Run(one.Name);
        EXPECT_EQ(runs_, one.Enabled ? 1 : 0) << one.Name;
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
    ASSERT_EQ(user_.Shown.size(), 2U);
    EXPECT_EQ(user_.Shown[0].Title, "mnuOpen Error");
    EXPECT_EQ(user_.Shown[0].Text,
              "Error Description:out of paper\r\n[mnuOpen]\r\n(Cancel Ends Program)");
}

TEST_F(CommandsTest, LimitButtonSwitchesTheDisplayButFollowsTheWideLineItem) {
    commands_.Register("mnuUseToleranceCurves", [this] { ++runs_; });
    commands_.ToolbarButtonClick("Tolerance");
    EXPECT_EQ(runs_, 1);
    EXPECT_STREQ(FindToolbarRow("Tolerance")->Follows, "mnuMarkOutOfToleranceInRed");
    commands_.ToolbarButtonClick("tolerance");
    EXPECT_THAT(user_.ShownTexts(),
                ElementsAre("Command For Button tolerance\r\nIs Not Implemented Yet"));
}

TEST(Tables, NameEachItemOnceAndReferToItemsThatExist) {
    std::set<std::string> names;
    for (const MenuRow& row : MenuRows()) {
        if (row.Kind == MenuKind::kSeparator) continue;
        EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
        EXPECT_TRUE(*row.Menu == '\0' || names.contains(row.Menu)) << row.Name;
    }
    for (const auto rows : {ToolbarButtons(), ToolbarKeysWithoutButton()}) {
        for (const ToolbarRow& row : rows) {
            EXPECT_TRUE(*row.Follows == '\0' || names.contains(row.Follows)) << row.Key;
        }
    }
}

TEST(ProgramPaths, HelpFileLiesBesideTheProgramOrInTheInstalledTree) {
    EXPECT_EQ(HelpFilePath("/opt/brask", '/'), "/opt/brask/BraskLite.chm");
    EXPECT_EQ(HelpFilePath("C:\\Program Files\\TALVEX k42 PC", '\\'),
              "C:\\Program Files\\TALVEX k42 PC\\HtmlHelp\\brasklite\\htmlhelp\\BraskLite.chm");
    EXPECT_EQ(ConnectionText("C:\\P", '\\'),
              "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\P\\BraskLite.mdb;"
              "Mode=ReadWrite|Share Deny None;Persist Security Info=False");
}

}  // namespace
}  // namespace brask
