// A user played by a script: remembers what was shown and gives the answers it was told to give.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/UserInterface.h"

namespace brask {

class ScriptedUserInterface final : public UserInterface {
  public:
    std::vector<Message> Shown;  // messages, questions and error dialogs, in order
    std::vector<std::string> Notices;
    std::vector<std::int64_t> Progress;  // counts set
    std::vector<ProgressMode> Begun;
    std::deque<bool> Answers;      // taken in turn by questions; false when used up
    int RepeatedWanted = 1 << 30;  // how many repeated messages until "no more of these"
    bool Cancelled = false;
    // Runs at every LetEventsRun. Where a test plays what a user does in the middle of long work:
    // cancel, close, start another load.
    std::function<void()> OnEvents = [] {};

    // The texts of all messages shown.
    std::vector<std::string> ShownTexts() const {
        std::vector<std::string> texts;
        for (const Message& message : Shown) texts.push_back(message.Text);
        return texts;
    }

    void ShowMessage(const Message& message) override { Shown.push_back(message); }
    bool ShowRepeatedMessage(const Message& message) override {
        Shown.push_back(message);
        return --RepeatedWanted > 0;
    }
    bool AskYesNo(const Message& question) override { return Answer(question); }
    bool AskRetry(const Message& message) override { return Answer(message); }
    void BeginProgress(ProgressMode mode) override { Begun.push_back(mode); }
    void SetProgressTotal(std::int64_t) override {}
    void SetProgressCount(std::int64_t count) override { Progress.push_back(count); }
    bool ProgressCancelled() const override { return Cancelled; }
    void EndProgress() override {}
    void ShowNotice(const std::string& text) override { Notices.push_back(text); }
    void Beep() override {}
    void SetWaitCursor(bool) override {}
    void LetEventsRun() override { OnEvents(); }
    void EndProgram() override { ended_ = true; }
    bool Ended() const override { return ended_; }

  private:
    bool Answer(const Message& question) {
        Shown.push_back(question);
        if (Answers.empty()) return false;
        const bool answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    bool ended_ = false;
};

}  // namespace brask
