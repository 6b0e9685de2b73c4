// The window of a retrieval from the handheld: what is being done, and a line for every file.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTimer>

#include "handheld/CollectionRetrieval.h"
#include "platform/Texts.h"

namespace brask {

// Not modal. It decides nothing: whoever shows it runs the retrieval when it is told to, and lets
// it live until it says Closed.
class frmAccessPDA final : public QDialog, public RetrievalView {
    Q_OBJECT

  public:
    frmAccessPDA(const Texts& texts, QWidget* parent);

    // The run is over. The window closes, or stays to be read until the user closes it.
    void RunEnded(bool stay);

    void ShowWaiting(bool waiting) override;
    void ShowStatus(const std::string& text) override;
    void ShowRows(const std::vector<RetrievalRow>& rows) override;
    void ShowRow(std::size_t number, const RetrievalRow& row) override;

  signals:
    // Once, shortly after it was shown: it is painted, and the run may take over.
    void ReadyToRun();
    // While the run goes on; RunEnded is expected soon.
    void CancelWanted();
    // Once, and last: the run is over and the window gone.
    void Closed();

  protected:
    void showEvent(QShowEvent* event) override;
    // Closing it in any way ends the run, at once for the eye.
    void reject() override;

  private:
    enum class Phase { kNotBegun, kRunning, kEnded };

    void BuildGrid();
    void FillRow(int line, const RetrievalRow& row);
    void SetCell(int row, int column, const QString& text);
    void TimerScreenDisplayed_Timer();
    void cmdCancel_Click();
    void Finish();

    const Texts& texts_;
    QStackedWidget* pages_;
    QLabel* lblWaitingforConnection;
    QLabel* lblStatus;
    QTableWidget* MSFlexGrid1;
    QPushButton* cmdCancel;
    QTimer* TimerScreenDisplayed;
    Phase phase_ = Phase::kNotBegun;
};

}  // namespace brask
