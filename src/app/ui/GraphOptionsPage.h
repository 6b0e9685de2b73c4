// The third tab: everything about the plot. What concerns limits, colours and printing only shows
// what is stored yet.
#pragma once

#include <QButtonGroup>
#include <QLabel>
#include <QScrollArea>
#include <QTableWidget>

#include "app/ui/DisplayPeriodPanel.h"
#include "app/ui/OptionControls.h"
#include "data/PlotColors.h"
#include "data/ProgramOptions.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"

namespace brask {

// The page decides nothing: it shows what it is told and says what was clicked. Small windows
// scroll it.
class GraphOptionsPage final : public QScrollArea {
    Q_OBJECT

  public:
    // The locale is only read while the page is made. Takes the panel in as one of its frames.
    GraphOptionsPage(const Texts& texts, const UserLocale& locale, DisplayPeriodPanel* period,
                     QWidget* parent);

    // Sets every control from the stored options; sends no signal.
    void ShowOptions(const ProgramOptions& options);
    // Lists the line colours with their numbers and samples.
    // From 1, as curves are counted; the editor's clipboard begins with the first colour.
    void ShowColors(const PlotColors& colors);
    // Marks a layout that was chosen elsewhere.
    // An index without a button leaves none marked.
    void ShowGraphType(int index) { ChooseOption(optGraph, index); }
    // Sets the box for marking the single readings, which a menu item can switch too.
    void ShowDataPoints(bool marked) { chkFlagDataPoints->setChecked(marked); }

  signals:
    // By the user's click.
    // Never sent by the Show functions. A click on the button that is marked already sends them
    // too; whoever listens must bear that. The index is that of GraphType.
    void GraphTypeChosen(int index);
    void TemperatureUnitChosen(bool fahrenheit);
    void StartWeekChosen(int day);
    void CursorTypeChosen(int index);
    void DataPointsToggled();
    void YScalingChosen(bool scales);

  private:
    // The three columns, left to right, and their larger frames.
    QWidget* BuildLayoutColumn(const UserLocale& locale);
    QWidget* BuildDrawingColumn();
    QGroupBox* BuildGraphColors();
    QGroupBox* BuildLineColors();
    QGroupBox* BuildClipboard();
    // Shows the colour in the editor's clipboard and the table's row that it came from.
    void ShowClipboard(int number, ColorValue color);

    const Texts& texts_;
    DisplayPeriodPanel* period_;
    // Everything stands on this widget, which the scroll area moves.
    QWidget* frameGraphOptions;
    // Must follow the widget that it fills.
    OptionControls controls_;
    // The controls, under the names that users' help and tests know. All belong to the page. Left
    // column:
    QButtonGroup* optGraph = nullptr;
    // Button 0 is Sunday, 1 Monday.
    QButtonGroup* optStartWeek = nullptr;
    // Button 0 is °F, 1 is °C: the other way round than stored.
    QButtonGroup* optTemperatureDisplay = nullptr;
    // Middle column:
    QButtonGroup* optCursorType = nullptr;
    QCheckBox* chkDisplayUpperLimits = nullptr;
    QCheckBox* chkMarkLimitsWiderLine = nullptr;
    QCheckBox* chkFlagDataPoints = nullptr;
    QCheckBox* chkChangeYScales = nullptr;
    QCheckBox* chkScaleGraph = nullptr;
    // Right column:
    QCheckBox* chkXYLabelColors = nullptr;
    QTableWidget* MSFlexGridColors = nullptr;
    QLabel* ShapeClipboard = nullptr;
    QLabel* lblClipboard = nullptr;
};

}  // namespace brask
