// The user at a terminal: messages and notices go to standard error, questions take their safe
// answer, progress is a line on a terminal. Texts are made printable first.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/StopSignal.h"
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

    // Ends the program, as EndProgram does, at the next LetEventsRun after this wish has come; with
    // none, the system ends it by force again.
    void EndOn(std::unique_ptr<StopSignal> stop) { stop_ = std::move(stop); }

    // Only the text is written; a title means nothing in a terminal.
    void ShowMessage(const Message& message) override;
    // Always wants more: a script must see every rejected line.
    bool ShowRepeatedMessage(const Message& message) override;
    bool AskYesNo(const Message& question) override;
    bool AskRetry(const Message& message) override;
    void BeginProgress(ProgressMode mode) override;
    void SetProgressTotal(std::int64_t expected) override { expected_ = expected; }
    void SetProgressCount(std::int64_t count) override;
    // An interrupt from the keyboard ends the process or, with EndOn, the work; there is no other
    // way to cancel here.
    bool ProgressCancelled() const override { return false; }
    void EndProgress() override;
    void ShowNotice(const std::string& text) override;
    void Beep() override {}
    void SetWaitCursor(bool) override {}
    void LetEventsRun() override { ended_ = ended_ || (stop_ && stop_->Requested()); }
    void EndProgram() override { ended_ = true; }
    bool Ended() const override { return ended_; }

  private:
    void ClearProgress();
    void WriteLines(const std::string& text);

    std::FILE* out_;
    const Clock& clock_;
    ConsoleOptions options_;
    std::unique_ptr<StopSignal> stop_;
    std::vector<std::string> messages_;
    std::int64_t nextProgress_ = 0;  // steady milliseconds
    std::int64_t expected_ = 0;      // 0 while unknown
    bool progressShown_ = false;
    bool ended_ = false;
};

}  // namespace brask
