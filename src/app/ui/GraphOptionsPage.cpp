#include "app/ui/GraphOptionsPage.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/OptionTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace option_texts;

namespace {

// The boxes are made as wide as these texts in the font in use.
constexpr const char* kWidestDate = "30-Mmm-2000 00:00:00";
constexpr const char* kWidestTime = "00:00 MM";

QColor ToQtColor(ColorValue color) { return {color.Red(), color.Green(), color.Blue()}; }

}  // namespace

GraphOptionsPage::GraphOptionsPage(const Texts& texts, const UserLocale& locale, QWidget* parent)
    : QScrollArea(parent),
      texts_(texts),
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
        button->setEnabled(false);
        week->layout()->addWidget(button);
    }

    QGroupBox* const temperature = controls_.Frame(kTemperature);
    optTemperatureDisplay = controls_.Options("optTemperatureDisplay", temperature,
                                              {kFahrenheit, kCelsius}, Available::kYes);
    connect(optTemperatureDisplay, &QButtonGroup::idClicked, this,
            [this](int index) { emit TemperatureUnitChosen(index == 0); });

    auto* column = new QWidget(frameGraphOptions);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QGroupBox* frame : {type, BuildPeriodFrame(locale), week, temperature}) {
        layout->addWidget(frame);
    }
    layout->addStretch();
    return column;
}

QGroupBox* GraphOptionsPage::BuildPeriodFrame(const UserLocale& locale) {
    QGroupBox* const frame = controls_.Frame(kDisplayPeriod);
    optPeriodDisplay = controls_.Options(
        "optPeriodDisplay", frame, {kDisplayAllData, kDisplayDates, kDisplayTimes, kDisplayDays},
        Available::kLater);
    // a new start always shows all data; the period is not stored
    optPeriodDisplay->button(0)->setChecked(true);
    const auto text = [frame](const char* name, const char* widest) {
        auto* box = new QLineEdit(frame);
        box->setObjectName(QString::fromLatin1(name));
        // the frame of the box takes some room beside the text
        const int margins = 2 * box->fontMetrics().averageCharWidth();
        box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QString::fromLatin1(widest)) +
                             margins);
        box->setEnabled(false);
        return box;
    };
    const auto days = [frame, &locale](const char* name) {
        auto* list = new QComboBox(frame);
        list->setObjectName(QString::fromLatin1(name));
        for (const std::string& day : locale.DayNames()) list->addItem(ToQt(day));
        list->setEnabled(false);
        return list;
    };
    txtStartUserDisplayPeriod = text("txtStartUserDisplayPeriod", kWidestDate);
    txtEndUserDisplayPeriod = text("txtEndUserDisplayPeriod", kWidestDate);
    txtStartUserDisplayTime = text("txtStartUserDisplayTime", kWidestTime);
    txtEndUserDisplayTime = text("txtEndUserDisplayTime", kWidestTime);
    cmbDisplayDayStart = days("cmbDisplayDayStart");
    cmbDisplayDayEnd = days("cmbDisplayDayEnd");

    // each option has its two boxes in the row below it
    QWidget* const boxes[][2] = {{txtStartUserDisplayPeriod, txtEndUserDisplayPeriod},
                                 {txtStartUserDisplayTime, txtEndUserDisplayTime},
                                 {cmbDisplayDayStart, cmbDisplayDayEnd}};
    auto* layout = static_cast<QVBoxLayout*>(frame->layout());
    for (int option = 1; option <= 3; ++option) {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(20, 0, 0, 0);
        row->addWidget(boxes[option - 1][0], 1);
        row->addWidget(new QLabel(ToQt(texts_, kTo), frame));
        row->addWidget(boxes[option - 1][1], 1);
        // the four buttons stand in the layout already; each row goes in behind its button and
        // moves the others down by one
        layout->insertLayout(2 * option, row);
    }
    auto* lblPeriod = new QLabel(frame);
    lblPeriod->setObjectName(QStringLiteral("lblPeriod"));
    layout->addWidget(lblPeriod);
    layout->addWidget(controls_.Button("cmdSetDisplayPeriod", kSetDisplayPeriod));
    return frame;
}

QWidget* GraphOptionsPage::BuildDrawingColumn() {
    QGroupBox* const cursor = controls_.Frame(kCursor);
    optCursorType =
        controls_.Options("optCursorType", cursor,
                          {kCursorLines, kCursorSquare, kCursorVertical, kCursorHorizontal,
                           kCursorCircle, kCursorDiamond, kCursorBox},
                          Available::kLater);

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
    txtStartUserDisplayTime->setText(ToQt(options.DisplayTimeFrom));
    txtEndUserDisplayTime->setText(ToQt(options.DisplayTimeTo));
    ChooseOption(optTemperatureDisplay, options.Fahrenheit ? 0 : 1);
    ChooseOption(optGraph, options.GraphType);
    ChooseOption(optStartWeek, options.StartWeekOn);
    cmbDisplayDayStart->setCurrentIndex(options.StartViewDayOn);
    // the last entry: the end day is none of the options that are read at start
    cmbDisplayDayEnd->setCurrentIndex(6);
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

void GraphOptionsPage::ShowPeriod(const QString& start, const QString& end) {
    txtStartUserDisplayPeriod->setText(start);
    txtEndUserDisplayPeriod->setText(end);
}

}  // namespace brask
