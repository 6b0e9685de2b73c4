// The third tab: everything about the plot. Here the layout and the temperature unit can be
// chosen; the other options show what is stored.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTableWidget>

#include "app/ui/OptionControls.h"
#include "data/PlotColors.h"
#include "data/ProgramOptions.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"

namespace brask {

class GraphOptionsPage final : public QScrollArea {
    Q_OBJECT

  public:
    GraphOptionsPage(const Texts& texts, const UserLocale& locale, QWidget* parent);

    // Sets every control from the stored options; sends no signal.
    void ShowOptions(const ProgramOptions& options);
    // Lists the line colours with their numbers and samples.
    void ShowColors(const PlotColors& colors);
    // Marks a layout that was chosen elsewhere.
    void ShowGraphType(int index) { ChooseOption(optGraph, index); }
    // The period boxes follow a continuous rebuild: the X range in date form.
    void ShowPeriod(const QString& start, const QString& end);

  signals:
    // By the user's click.
    void GraphTypeChosen(int index);
    void TemperatureUnitChosen(bool fahrenheit);

  private:
    // The three columns, left to right, and their larger frames.
    QWidget* BuildLayoutColumn(const UserLocale& locale);
    QGroupBox* BuildPeriodFrame(const UserLocale& locale);
    QWidget* BuildDrawingColumn();
    QGroupBox* BuildGraphColors();
    QGroupBox* BuildLineColors();
    QGroupBox* BuildClipboard();
    // Shows the colour in the editor's clipboard and the table's row that it came from.
    void ShowClipboard(int number, ColorValue color);

    const Texts& texts_;
    QWidget* frameGraphOptions;
    OptionControls controls_;
    QButtonGroup* optGraph = nullptr;
    QButtonGroup* optPeriodDisplay = nullptr;
    QLineEdit* txtStartUserDisplayPeriod = nullptr;
    QLineEdit* txtEndUserDisplayPeriod = nullptr;
    QLineEdit* txtStartUserDisplayTime = nullptr;
    QLineEdit* txtEndUserDisplayTime = nullptr;
    QComboBox* cmbDisplayDayStart = nullptr;
    QComboBox* cmbDisplayDayEnd = nullptr;
    QButtonGroup* optStartWeek = nullptr;
    QButtonGroup* optTemperatureDisplay = nullptr;
    QButtonGroup* optCursorType = nullptr;
    QCheckBox* chkDisplayUpperLimits = nullptr;
    QCheckBox* chkMarkLimitsWiderLine = nullptr;
    QCheckBox* chkFlagDataPoints = nullptr;
    QCheckBox* chkChangeYScales = nullptr;
    QCheckBox* chkScaleGraph = nullptr;
    QCheckBox* chkXYLabelColors = nullptr;
    QTableWidget* MSFlexGridColors = nullptr;
    QLabel* ShapeClipboard = nullptr;
    QLabel* lblClipboard = nullptr;
};

}  // namespace brask
