// The window of a download: what the instrument is waited for, how much has come, for how long.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <array>

#include "link/DownloadDisplay.h"
#include "platform/Clock.h"
#include "platform/Texts.h"

namespace brask {

// Not modal. It decides nothing: whoever shows it runs the download when it says so, and lets it
// live until it says Closed.
class frmDiscoverStatus final : public QDialog, public DownloadView {
    Q_OBJECT

  public:
    // Both must outlive the window.
    frmDiscoverStatus(const Texts& texts, const Clock& clock, QWidget* parent);

    // The download has returned: closes the window.
    void RunEnded();

    void OnDownload(const DownloadDisplay& display) override;

  signals:
    // Once, 100 ms after it was shown, so that it is painted before the run takes over.
    void ReadyToRun();
    // While the run goes on; RunEnded is expected soon.
    void CancelWanted();
    // Once, and last: the run is over, or never began, and the window is gone.
    void Closed();

  protected:
    void showEvent(QShowEvent* event) override;
    // Escape and the close button are Cancel; the window is gone at once for the eye.
    void reject() override { cmdCancel_Click(); }

  private:
    enum class Phase { kNotBegun, kRunning, kEnded };

    void Arrange();
    void cmdCancel_Click();
    // Begins the run.
    void Timer1_Timer();
    // While data comes in: how much a second, as tool tip of the bar.
    void Timer2_Timer();
    // The elapsed time.
    void timer10s_Timer();
    std::int64_t ElapsedTenths() const;
    void ShowPrompt(bool prompt);
    void Finish();

    const Texts& texts_;
    const Clock& clock_;
    // In three pairs of lines: what is done, the sockets' state, what the user is asked for.
    std::array<QLabel*, 6> lblIRDAConnect{};
    QLabel* lblElapsed;
    QProgressBar* progressBar;
    QPushButton* cmdCancel;
    QTimer* Timer1;
    QTimer* Timer2;
    QTimer* timer10s;
    Phase phase_ = Phase::kNotBegun;
    DownloadStep step_ = DownloadStep::kStarting;
    std::int64_t bytes_ = 0;
    std::int64_t begun_ = 0;  // steady milliseconds; what the elapsed time counts from
    bool prompt_ = false;
};

}  // namespace brask
