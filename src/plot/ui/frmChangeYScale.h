// The dialog that sets the ranges of the axes by hand.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "plot/PlotNavigation.h"
#include "plot/ScaleEntry.h"

class QGridLayout;

namespace brask {

class frmChangeYScale final : public QDialog {
    Q_OBJECT

  public:
    // What the dialog reads and sets; all must outlive it. X takes dates in the continuous layout
    // only: hours and days have the display period.
    struct Parts {
        const Chart& Plot;
        PlotNavigation& Navigation;
        const UserLocale& Locale;
        LongDateOrder DateOrder;
        const Texts& Words;
        bool DatesOnX;
    };
    frmChangeYScale(const Parts& parts, QWidget* parent);

  private:
    // One row of the dialog.
    struct Row {
        QCheckBox* Check;
        QLineEdit* From;
        QLineEdit* To;
    };
    // The names are those of the three controls.
    struct RowNames {
        const char* Check;
        const char* From;
        const char* To;
    };
    Row AddRow(QGridLayout& grid, const RowNames& names, const TextRow& label,
               const ScaleRow& shown);
    // Boxes follow their check box; OK and the message follow what the boxes say.
    void UpdateFields();
    ScaleEntry Entry() const;
    ScaleReading Reading() const;
    void CmdOK_Click();

    Parts parts_;
    Row dates_{};
    Row gas_{};
    Row temperature_{};
    QLabel* lblErr = nullptr;
    QPushButton* CmdOK = nullptr;
};

}  // namespace brask
