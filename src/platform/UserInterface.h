// How the core talks to the person in front of it: a window, a terminal, or a test's script.
#pragma once

#include <cstdint>
#include <string>

namespace brask {

// What a message box says. UTF-8; lines are joined by CR LF.
struct Message {
    std::string Title;
    std::string Text;
};

// What long work is doing, as the progress window numbers it. The number selects the caption of the
// progress window.
enum class ProgressMode { kFillingGrid = 0, kReadingFile = 1, kVerifying = 2 };

class UserInterface {
  public:
    virtual ~UserInterface() = default;

    // A message with one OK button; returns when it was closed.
    virtual void ShowMessage(const Message& message) = 0;
    // The same for one of perhaps many like messages, with a box to switch the rest off. Returns
    // false when the user wants no more of them. A ruined file can have a bad line for every
    // reading; nobody should have to close a million boxes.
    virtual bool ShowRepeatedMessage(const Message& message) = 0;
    // A question; true for yes. Closing the box counts as no; without a person to ask the answer is
    // the safe one, no, unless yes was asked for beforehand.
    virtual bool AskYesNo(const Message& question) = 0;
    // The error dialog with Retry and Cancel; true for Retry.
    virtual bool AskRetry(const Message& message) = 0;

    // Progress of long work: begin, the count to expect where it is known, counts as it goes, end.
    // Cancelled turns true once the user asked to stop, and false again with the next begin.
    virtual void BeginProgress(ProgressMode mode) = 0;
    virtual void SetProgressTotal(std::int64_t expected) = 0;
    virtual void SetProgressCount(std::int64_t count) = 0;
    virtual bool ProgressCancelled() const = 0;
    virtual void EndProgress() = 0;

    // One line that needs no answer, for the status bar. In a window it replaces the notice before
    // it. Nothing waits for it, so it may be shown from the middle of any work.
    virtual void ShowNotice(const std::string& text) = 0;
    virtual void Beep() = 0;
    // Calls nest: every true needs its false.
    virtual void SetWaitCursor(bool waiting) = 0;

    // Lets pending events run. Cheap: it really pumps only when some 10 ms have passed. While it
    // runs the user may click, resize or close; so nobody may hold a reference into something that
    // a command could replace, and commands refuse to start while another is running.
    virtual void LetEventsRun() = 0;

    // Asks the whole program to end: from now on Ended() is true, every loop of the core returns
    // at its next LetEventsRun, and callers return at once. Never ends the process itself.
    virtual void EndProgram() = 0;
    virtual bool Ended() const = 0;
};

}  // namespace brask
