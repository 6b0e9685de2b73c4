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
class ProgressView {
  public:
    virtual ~ProgressView() = default;

    // Shows the view; a cancel of earlier work is forgotten.
    virtual void Begin(ProgressMode mode) = 0;
    // Called often: the view decides how often it repaints.
    virtual void SetCount(std::int64_t count) = 0;
    // Whether the user has asked to stop since Begin.
    virtual bool Cancelled() const = 0;
    virtual void End() = 0;
};

// Shows one line that needs no answer.
class NoticeView {
  public:
    virtual ~NoticeView() = default;

    virtual void ShowNotice(const QString& text) = 0;
};

class QtUserInterface final : public UserInterface {
  public:
    // `noMoreMessages` is the caption of the box that switches repeated messages off.
    QtUserInterface(const Texts& texts, const TextRow& noMoreMessages);

    // The views may come and go with the main window; without them nothing is shown. Null views are
    // allowed; the views are not owned.
    void SetViews(QWidget* window, ProgressView* progress, NoticeView* notices);

    void ShowMessage(const Message& message) override;
    bool ShowRepeatedMessage(const Message& message) override;
    bool AskYesNo(const Message& question) override;
    bool AskRetry(const Message& message) override;
    void BeginProgress(ProgressMode mode) override;
    // The progress window shows counts alone.
    void SetProgressTotal(std::int64_t) override {}
    void SetProgressCount(std::int64_t count) override;
    bool ProgressCancelled() const override;
    void EndProgress() override;
    void ShowNotice(const std::string& text) override;
    void Beep() override;
    void SetWaitCursor(bool waiting) override;
    void LetEventsRun() override;
    // Also closes all windows and leaves the event loop.
    void EndProgram() override;
    bool Ended() const override { return ended_; }

  private:
    // What a box belongs to: the modal window in front, so that it never opens behind it.
    QWidget* Parent() const;

    const Texts& texts_;
    TextRow noMoreMessages_;
    QPointer<QWidget> window_;
    ProgressView* progress_ = nullptr;
    NoticeView* notices_ = nullptr;
    QElapsedTimer sinceEvents_;
    bool ended_ = false;
};

}  // namespace brask
