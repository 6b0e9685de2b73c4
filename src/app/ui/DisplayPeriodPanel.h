// The frame of the graph options that chooses which stretch of the X axis is shown.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/ui/OptionControls.h"
#include "data/ProgramOptions.h"
#include "data/Settings.h"
#include "plot/DisplayPeriod.h"
#include "plot/PlotNavigation.h"

namespace brask {

// Shows the DisplayPeriod, which decides what the texts mean.
class DisplayPeriodPanel final : public QGroupBox {
    Q_OBJECT

  public:
    // All must outlive the panel.
    struct Parts {
        DisplayPeriod& Period;
        PlotNavigation& Navigation;
        const Chart& Plot;
        Settings& Options;
        const UserLocale& Locale;
        const Texts& Words;
    };
    DisplayPeriodPanel(const Parts& parts, QWidget* parent);

    // Sets the boxes from the stored options; stores nothing.
    void ShowOptions(const ProgramOptions& options);
    // After every rebuild: the layout says which periods there are, the first day of the week how
    // the lists begin. A plot with dates fills the date boxes with its range.
    void ShowPlot(GraphType layout, int startWeekOn);
    // What is in view now.
    void ShowVisibleRange(const QString& text);
    // Stores the day that the list shows. Needed when another first day of the week has given the
    // same place in the list another name.
    void StoreLastDay();
    // Chooses an option as a click on its button would.
    void Choose(PeriodOption option);

  signals:
    // Also when another layout has brought back the first option.
    void OptionShown(int index);

  private:
    QLineEdit* TextBox(const char* name, const TextRow& which, const char* widest);
    QComboBox* DayList(const char* name, const TextRow& which);
    QLabel* MessageLabel(const char* name);
    void AddRow(int option, QWidget* from, QWidget* to, QLabel* message);
    void FillDays(int startWeekOn);
    // The boxes of the chosen option alone can be used.
    void EnableBoxes();
    // Reads the boxes, says beside them what is wrong, and allows the button or not.
    void CheckInput();
    void ShowEntry();

    void optPeriodDisplay_Click(int index);
    void cmbDisplayDayStart_Click(int day);
    void cmbDisplayDayEnd_Click(int day);
    void cmdSetDisplayPeriod_Click();

    Parts parts_;
    OptionControls controls_;
    GraphType layout_ = GraphType::kContinuous;
    QButtonGroup* optPeriodDisplay = nullptr;
    QLineEdit* txtStartUserDisplayPeriod = nullptr;
    QLineEdit* txtEndUserDisplayPeriod = nullptr;
    QLineEdit* txtStartUserDisplayTime = nullptr;
    QLineEdit* txtEndUserDisplayTime = nullptr;
    QComboBox* cmbDisplayDayStart = nullptr;
    QComboBox* cmbDisplayDayEnd = nullptr;
    // Below the boxes of their option.
    QLabel* lblDatesErr = nullptr;
    QLabel* lblTimesErr = nullptr;
    QLabel* lblDaysErr = nullptr;
    QLabel* lblPeriod = nullptr;
    QPushButton* cmdSetDisplayPeriod = nullptr;
};

}  // namespace brask
