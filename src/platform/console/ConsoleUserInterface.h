// The user at a terminal: messages and notices go to standard error, questions take their safe
// answer, progress is a line on a terminal. Texts are made printable first.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/UserInterface.h"

namespace brask {

struct ConsoleOptions {
    bool Yes = false;       // answer questions with yes and the error dialog with Retry
    bool Progress = false;  // show progress; for terminals only
};

class ConsoleUserInterface final : public UserInterface {
  public:
    // Writes to `out`, which must outlive this object.
    ConsoleUserInterface(std::FILE* out, const Clock& clock, ConsoleOptions options);

    // Every message shown so far, in order, UTF-8. Questions are among them, notices are not. A
    // JSON document of the shell ends with this list.
    const std::vector<std::string>& Messages() const { return messages_; }

    // Only the text is written; a title means nothing in a terminal.
    void ShowMessage(const Message& message) override;
    // Always wants more: a script must see every rejected line.
    bool ShowRepeatedMessage(const Message& message) override;
    bool AskYesNo(const Message& question) override;
    bool AskRetry(const Message& message) override;
    void BeginProgress(ProgressMode mode) override;
    void SetProgressTotal(std::int64_t expected) override { expected_ = expected; }
    void SetProgressCount(std::int64_t count) override;
    // An interrupt from the keyboard ends the process; there is no other way to cancel here.
    bool ProgressCancelled() const override { return false; }
    void EndProgress() override;
    void ShowNotice(const std::string& text) override;
    void Beep() override {}
    void SetWaitCursor(bool) override {}
    void LetEventsRun() override {}
    void EndProgram() override { ended_ = true; }
    bool Ended() const override { return ended_; }

  private:
    void ClearProgress();
    void WriteLines(const std::string& text);

    std::FILE* out_;
    const Clock& clock_;
    ConsoleOptions options_;
    std::vector<std::string> messages_;
    std::int64_t nextProgress_ = 0;  // steady milliseconds
    std::int64_t expected_ = 0;      // 0 while unknown
    bool progressShown_ = false;
    bool ended_ = false;
};

}  // namespace brask
