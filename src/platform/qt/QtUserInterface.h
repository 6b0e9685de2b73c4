// The user in front of the windows. Message boxes are Qt's; progress and notices are shown by the
// windows that the program hands in.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>
#include <string>

#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

// Shows the progress of long work.
// One piece of work at a time: Begin and End come in pairs and do not nest.
class ProgressView {
  public:
    virtual ~ProgressView() = default;

    virtual void Begin(ProgressMode mode) = 0;
    // Called very often; must not draw each time.
    virtual void SetCount(std::int64_t count) = 0;
    // True from the user's wish to stop until the next Begin.
    virtual bool Cancelled() const = 0;
    virtual void End() = 0;
};

// Shows one line that needs no answer.
// A notice takes the place of the one before. Never blocks and never fails.
class NoticeView {
  public:
    virtual ~NoticeView() = default;

    virtual void ShowNotice(const QString& text) = 0;
};

// Made before the main window and outlives it. Message boxes run an event loop of their own: timers
// go on and other windows repaint while one is open.
class QtUserInterface final : public UserInterface {
  public:
    // `noMoreMessages` is the caption of the box that switches repeated messages off.
    // Texts must outlive the object. The application object must exist before anything is shown.
    QtUserInterface(const Texts& texts, const TextRow& noMoreMessages);

    // The views may come and go with the main window; without them nothing is shown.
    // Not owned. The window is watched and may simply go; the other two must be taken back (by null
    // pointers) before they go, unless nothing is shown any more.
    void SetViews(QWidget* window, ProgressView* progress, NoticeView* notices);

    void ShowMessage(const Message& message) override;
    bool ShowRepeatedMessage(const Message& message) override;
    // Escape and the close button are No here, and Cancel below.
    bool AskYesNo(const Message& question) override;
    bool AskRetry(const Message& message) override;
    // Lets events run, so that the progress window is painted before the work takes over.
    void BeginProgress(ProgressMode mode) override;
    // The progress window shows counts alone.
    void SetProgressTotal(std::int64_t) override {}
    void SetProgressCount(std::int64_t count) override;
    bool ProgressCancelled() const override;
    void EndProgress() override;
    void ShowNotice(const std::string& text) override;
    void Beep() override;
    // Calls must come in pairs: cursors are stacked.
    void SetWaitCursor(bool waiting) override;
    // Handlers of any window may be called from here. Whoever calls it must bear that, and must
    // have locked out whatever would disturb the work.
    void LetEventsRun() override;
    // Also closes all windows and leaves the event loop.
    void EndProgram() override;
    bool Ended() const override { return ended_; }

  private:
    // What a box belongs to: the modal window in front, so that it never opens behind it.
    QWidget* Parent() const;

    const Texts& texts_;
    // A row and not its text, so that it follows the language.
    TextRow noMoreMessages_;
    QPointer<QWidget> window_;
    ProgressView* progress_ = nullptr;
    NoticeView* notices_ = nullptr;
    // Since events ran the last time.
    QElapsedTimer sinceEvents_;
    bool ended_ = false;
};

}  // namespace brask
