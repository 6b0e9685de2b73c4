#include <memory>

#include "FilesFixture.h"
#include "platform/ProgramError.h"
#include "platform/Texts.h"
#include "platform/console/ConsoleUserInterface.h"
#include "platform/simulated/ManualClock.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {
namespace {

TEST(Texts, PlacesAreFilledInOnePass) {
    const std::pair<const char*, const char*> cases[] = {
        {"%1 and %2", "a% and %1"}, {"%2%1%2", "%1a%%1"}, {"%1 of %3", "a% of %3"},
        {"%0 %x %", "%0 %x %"},     {"%%1", "%a%"},       {"%10", "a%0"}};
    for (const auto& [wording, filled] : cases) {
        EXPECT_EQ(EnglishTexts().Fill(TextRow("test", wording), {"a%", "%1"}), filled);
    }
}

TEST(ProgramError, RetryCancelAndOkAlone) {
    ScriptedUserInterface user;
    user.Answers = {true, false};
    EXPECT_TRUE(ShowProgramError(user, EnglishTexts(), {"Load", "No", "Step 2", false}));
    EXPECT_EQ(user.Answers.size(), 2U) << "without a choice nothing is asked";
    EXPECT_TRUE(ShowProgramError(user, EnglishTexts(), {"Load", "No", "Step 2", true}));
    EXPECT_FALSE(user.Ended());
    EXPECT_FALSE(ShowProgramError(user, EnglishTexts(), {"Load", "No", "", true}));
    EXPECT_TRUE(user.Ended());
    const std::string description = "Error Description:No\r\n";
    EXPECT_THAT(user.ShownTexts(),
                testing::ElementsAre(description + "[Step 2]",
                                     description + "[Step 2]\r\n(Cancel Ends Program)",
                                     description + "[Load]\r\n(Cancel Ends Program)"));
}

// What a console user interface wrote to its terminal.
class Console {
  public:
    explicit Console(bool yes, bool progress = false)
        : User(std::make_unique<ConsoleUserInterface>(out_, Time, ConsoleOptions{yes, progress})) {}
    ~Console() { std::fclose(out_); }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    std::string Written() { return WrittenTo(out_); }

  private:
    std::FILE* out_ = std::tmpfile();

  public:
    ManualClock Time;
    std::unique_ptr<ConsoleUserInterface> User;
};

TEST(ConsoleUserInterface, MessagesKeepTheirLinesAndTakeTheSafeAnswer) {
    Console console(false);
    console.User->ShowMessage({"Title", "first\r\nsecond"});
    EXPECT_FALSE(console.User->AskYesNo({"Title", "Sure?"}));
    EXPECT_FALSE(console.User->AskRetry({"Title", "Again?"}));
    EXPECT_TRUE(console.User->ShowRepeatedMessage({"Title", "one of many"}));
    // bytes of files cannot command the terminal
    console.User->ShowNotice("a\x1B]0;x\a\tb\x7F \xC2\x9B °C");
    EXPECT_EQ(console.Written(),
              "first\nsecond\nSure?\nAgain?\none of many\na\uFFFD]0;x\uFFFD\tb\uFFFD \uFFFD °C\n");
    EXPECT_THAT(console.User->Messages(),
                testing::ElementsAre("first\r\nsecond", "Sure?", "Again?", "one of many"));
    EXPECT_TRUE(Console(true).User->AskYesNo({"Title", "Sure?"}));
}

TEST(ConsoleUserInterface, ProgressIsRareAndGoesAwayBeforeAMessage) {
    Console console(false, true);
    console.User->BeginProgress(ProgressMode::kReadingFile);
    console.User->SetProgressTotal(1000);
    console.User->SetProgressCount(100);
    console.Time.Milliseconds = 250;
    console.User->SetProgressCount(200);
    console.User->SetProgressCount(300);
    console.User->ShowMessage({"", "bad line"});
    console.User->EndProgress();
    EXPECT_EQ(console.Written(), "\r[####................] 20 %  200\r\033[Kbad line\n");
}

}  // namespace
}  // namespace brask
