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

class frmBuildingGraph final : public QDialog, public ProgressView {
  public:
    frmBuildingGraph(const Texts& texts, QWidget* parent);

    void Begin(ProgressMode mode) override;
    // Shown once a second.
    void SetCount(std::int64_t count) override { counter_ = count; }
    bool Cancelled() const override { return cancelled_; }
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
    QPushButton* cmdCancel;
    QTimer* Timer1Second;
    std::int64_t counter_ = 0;
    bool cancelled_ = false;
};

}  // namespace brask
