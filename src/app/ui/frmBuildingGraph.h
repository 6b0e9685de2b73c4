// The small window that runs beside long work: what is being done, how far it is, and, while a
// file is read, a way to stop it.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "platform/Texts.h"
#include "platform/qt/QtUserInterface.h"

namespace brask {

// Not modal: the main window stays usable for what is harmless, and its commands are locked by the
// busy flag. It lives from the calls in which long work lets events run.
class frmBuildingGraph final : public QDialog, public ProgressView {
  public:
    frmBuildingGraph(const Texts& texts, QWidget* parent);

    // Shows it with a count of nothing and Cancel not yet asked for.
    void Begin(ProgressMode mode) override;
    // Shown once a second; not while verifying, which has no count.
    void SetCount(std::int64_t count) override { counter_ = count; }
    // Stays true until the next Begin.
    bool Cancelled() const override { return cancelled_; }
    // Also right when it is not shown.
    void End() override;

  protected:
    // Closing the window or Escape is Cancel; the work closes it when it has stopped.
    void reject() override { cmdCancel_Click(); }

  private:
    // Only asks the work to stop; it sees that at its next turn for events.
    void cmdCancel_Click();
    // Shows the count and sets it back, so that a standstill is seen as one.
    void Timer1Second_Timer();

    const Texts& texts_;
    QLabel* lblMode;
    QLabel* lblPoints;
    // Only there while a file is read.
    QPushButton* cmdCancel;
    QTimer* Timer1Second;
    // The last count that the work reported since the line was shown.
    std::int64_t counter_ = 0;
    bool cancelled_ = false;
};

}  // namespace brask
