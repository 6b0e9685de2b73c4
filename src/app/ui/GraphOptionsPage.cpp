#include "app/ui/GraphOptionsPage.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/OptionTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace option_texts;

namespace {

QColor ToQtColor(ColorValue color) { return {color.Red(), color.Green(), color.Blue()}; }

}  // namespace

GraphOptionsPage::GraphOptionsPage(const Texts& texts, const UserLocale& locale,
                                   DisplayPeriodPanel* period, QWidget* parent)
    : QScrollArea(parent),
      texts_(texts),
      period_(period),
      frameGraphOptions(new QWidget(this)),
      controls_(texts, frameGraphOptions) {
    frameGraphOptions->setObjectName(QStringLiteral("frameGraphOptions"));
    auto* colors = new QWidget(frameGraphOptions);
    auto* colorColumn = new QVBoxLayout(colors);
    colorColumn->setContentsMargins(0, 0, 0, 0);
    colorColumn->addWidget(BuildGraphColors());
    colorColumn->addWidget(BuildLineColors(), 1);

    auto* columns = new QHBoxLayout(frameGraphOptions);
    columns->addWidget(BuildLayoutColumn(locale), 2);
    columns->addWidget(BuildDrawingColumn(), 2);
    // half of the width for the colours: their table has three columns of its own
    columns->addWidget(colors, 4);
    setWidget(frameGraphOptions);
    // the controls take the width that there is, and scroll only below their least size
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
}

QWidget* GraphOptionsPage::BuildLayoutColumn(const UserLocale& locale) {
    QGroupBox* const type = controls_.Frame(kGraphType);
    optGraph = controls_.Options("optGraph", type, {kContinuousGraph, kOverlapDays, kOverlapWeeks},
                                 Available::kYes);
    // idClicked and not idToggled, here and below: only clicks are sent, never what the program
    // sets itself
    connect(optGraph, &QButtonGroup::idClicked, this, &GraphOptionsPage::GraphTypeChosen);

    QGroupBox* const week = controls_.Frame(kWeekStartsOn);
    // made by hand: the captions are the locale's words and stand in no table of texts
    optStartWeek = new QButtonGroup(this);
    optStartWeek->setObjectName(QStringLiteral("optStartWeek"));
    for (int day = 0; day < 2; ++day) {
        const QString name = ToQt(locale.DayNames()[static_cast<std::size_t>(day)]);
        QRadioButton* const button = controls_.Option(optStartWeek, day, name);
        week->layout()->addWidget(button);
    }
    connect(optStartWeek, &QButtonGroup::idClicked, this, &GraphOptionsPage::StartWeekChosen);

    QGroupBox* const temperature = controls_.Frame(kTemperature);
    optTemperatureDisplay = controls_.Options("optTemperatureDisplay", temperature,
                                              {kFahrenheit, kCelsius}, Available::kYes);
    connect(optTemperatureDisplay, &QButtonGroup::idClicked, this,
            [this](int index) { emit TemperatureUnitChosen(index == 0); });

    auto* column = new QWidget(frameGraphOptions);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QGroupBox* frame : std::initializer_list<QGroupBox*>{type, period_, week, temperature}) {
        layout->addWidget(frame);
    }
    layout->addStretch();
    return column;
}

QWidget* GraphOptionsPage::BuildDrawingColumn() {
    QGroupBox* const cursor = controls_.Frame(kCursor);
    optCursorType =
        controls_.Options("optCursorType", cursor,
                          {kCursorLines, kCursorSquare, kCursorVertical, kCursorHorizontal,
                           kCursorCircle, kCursorDiamond, kCursorBox},
                          Available::kYes);
    connect(optCursorType, &QButtonGroup::idClicked, this, &GraphOptionsPage::CursorTypeChosen);

    QGroupBox* const limits = controls_.Frame(kUpperLimits);
    chkDisplayUpperLimits = controls_.CheckBox("chkDisplayUpperLimits", kDisplayUpperLimits);
    chkMarkLimitsWiderLine = controls_.CheckBox("chkMarkLimitsWiderLine", kMarkWide);
    limits->layout()->addWidget(chkDisplayUpperLimits);
    limits->layout()->addWidget(chkMarkLimitsWiderLine);
    limits->layout()->addWidget(controls_.Button("cmdSetUpperLimit", kSetUpperLimit));

    QGroupBox* const drawing = controls_.Frame(kDrawing);
    chkFlagDataPoints = controls_.CheckBox("chkFlagDataPoints", kMarkPoints);
    chkChangeYScales = controls_.CheckBox("chkChangeYScales", kScaleOnZoom);
    chkScaleGraph = controls_.CheckBox("chkScaleGraph", kScalePrint);
    for (QCheckBox* box : {chkFlagDataPoints, chkChangeYScales, chkScaleGraph}) {
        drawing->layout()->addWidget(box);
    }
    for (QCheckBox* box : {chkFlagDataPoints, chkChangeYScales}) box->setEnabled(true);
    connect(chkFlagDataPoints, &QCheckBox::clicked, this, &GraphOptionsPage::DataPointsToggled);
    connect(chkChangeYScales, &QCheckBox::clicked, this, &GraphOptionsPage::YScalingChosen);

    auto* column = new QWidget(frameGraphOptions);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QGroupBox* frame : {cursor, limits, drawing}) layout->addWidget(frame);
    layout->addStretch();
    return column;
}

QGroupBox* GraphOptionsPage::BuildGraphColors() {
    QGroupBox* const frame = controls_.Frame(kGraphColors);
    auto* grid = new QGridLayout;
    const struct {
        TextRow Label;
        const char* Name;
    } rows[] = {{kAxesBackground, "cmdAxesColor"},
                {kGraphBackground, "cmdGraphBackground"},
                {kTitle, "cmdTitleColor"},
                {kAxesLabels, "cmdXYAxes"}};
    int line = 0;
    for (const auto& row : rows) {
        QPushButton* const button = controls_.Button(row.Name, QString());
        // a button that is a field of colour has no caption to be read out
        button->setAccessibleName(ToQt(texts_, row.Label));
        button->setFixedWidth(72);
        grid->addWidget(new QLabel(ToQt(texts_, row.Label), frame), line, 0);
        grid->addWidget(button, line++, 1);
    }
    grid->setColumnStretch(2, 1);
    chkXYLabelColors = controls_.CheckBox("chkXYLabelColors", kLineColorsForLabels);
    auto* layout = static_cast<QVBoxLayout*>(frame->layout());
    layout->addLayout(grid);
    layout->addWidget(chkXYLabelColors);
    layout->addWidget(controls_.Button("cmdRestoreColorsToDefault", kRestoreColors));
    return frame;
}

QGroupBox* GraphOptionsPage::BuildLineColors() {
    QGroupBox* const frame = controls_.Frame(kLineColors);
    MSFlexGridColors = new QTableWidget(0, 3, frame);
    MSFlexGridColors->setObjectName(QStringLiteral("MSFlexGridColors"));
    MSFlexGridColors->setAccessibleName(ToQt(texts_, kLineColors));
    MSFlexGridColors->setHorizontalHeaderLabels(
        {ToQt(texts_, kColumnLine), ToQt(texts_, kColumnRgb), ToQt(texts_, kColumnSample)});
    MSFlexGridColors->verticalHeader()->hide();
    MSFlexGridColors->horizontalHeader()->setStretchLastSection(true);
    MSFlexGridColors->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // a selected row would hide its colour
    MSFlexGridColors->setSelectionMode(QAbstractItemView::NoSelection);
    MSFlexGridColors->setColumnWidth(0, 44);
    MSFlexGridColors->setColumnWidth(1, 80);
    MSFlexGridColors->setMinimumHeight(150);

    auto* buttons = new QGridLayout;
    const std::pair<const char*, TextRow> edits[] = {{"cmdInsertBefore", kInsertBefore},
                                                     {"cmdInsertAfter", kInsertAfter},
                                                     {"cmdChangeColor", kChangeColor},
                                                     {"cmdCopyColor", kCopyColor},
                                                     {"cmdDeleteColor", kDeleteColor}};
    int place = 0;
    for (const auto& edit : edits) {
        // "1" is the colour in the clipboard at start; the captions follow it once colours can be
        // edited
        buttons->addWidget(controls_.Button(edit.first, ToQt(texts_.Fill(edit.second, {"1"}))),
                           place / 2, place % 2);
        ++place;
    }
    buttons->addWidget(controls_.Button("cmdRestoreLineColors", kRestoreLineColors), 2, 1);
    auto* layout = static_cast<QVBoxLayout*>(frame->layout());
    layout->addWidget(MSFlexGridColors, 1);
    layout->addLayout(buttons);
    layout->addWidget(BuildClipboard());
    return frame;
}

// The one colour that the editor copies and inserts; nothing to do with the system's clipboard.
QGroupBox* GraphOptionsPage::BuildClipboard() {
    QGroupBox* const frame = controls_.Frame(kClipboard);
    ShapeClipboard = new QLabel(frame);
    ShapeClipboard->setObjectName(QStringLiteral("ShapeClipboard"));
    ShapeClipboard->setFixedSize(48, 20);
    ShapeClipboard->setFrameShape(QFrame::Box);
    lblClipboard = new QLabel(frame);
    lblClipboard->setObjectName(QStringLiteral("lblClipboard"));
    auto* row = new QHBoxLayout;
    row->addWidget(ShapeClipboard);
    row->addWidget(lblClipboard, 1);
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(row);
    return frame;
}

void GraphOptionsPage::ShowClipboard(int number, ColorValue color) {
    QPixmap swatch(ShapeClipboard->size());
    swatch.fill(ToQtColor(color));
    ShapeClipboard->setPixmap(swatch);
    lblClipboard->setText(ToQt(texts_.Fill(kClipboardColor, {std::to_string(number)})));
}

void GraphOptionsPage::ShowOptions(const ProgramOptions& options) {
    period_->ShowOptions(options);
    ChooseOption(optTemperatureDisplay, options.Fahrenheit ? 0 : 1);
    ChooseOption(optGraph, options.GraphType);
    ChooseOption(optStartWeek, options.StartWeekOn);
    chkFlagDataPoints->setChecked(options.UseDataMarkers);
    chkChangeYScales->setChecked(options.ScaleYAxisOnZoom);
    chkXYLabelColors->setChecked(options.UseLblColors);
    ChooseOption(optCursorType, options.CursorType);
    chkScaleGraph->setChecked(options.ScalePrint);
    chkDisplayUpperLimits->setChecked(options.UseToleranceCurve);
    chkMarkLimitsWiderLine->setChecked(options.MarkOutOfToleranceInRed);
}

void GraphOptionsPage::ShowColors(const PlotColors& colors) {
    MSFlexGridColors->setRowCount(colors.Count());
    for (int row = 0; row < colors.Count(); ++row) {
        const ColorValue color = colors.CurveColor(row + 1);
        auto* sample = new QTableWidgetItem;
        sample->setBackground(ToQtColor(color));
        // the table owns its items and deletes those that they replace
        MSFlexGridColors->setItem(row, 0, new QTableWidgetItem(QString::number(row + 1)));
        MSFlexGridColors->setItem(row, 1, new QTableWidgetItem(ToQt(ColorToRgbText(color))));
        MSFlexGridColors->setItem(row, 2, sample);
    }
    ShowClipboard(1, colors.CurveColor(1));
}

}  // namespace brask
