#include "app/ui/DisplayPeriodPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "app/OptionTexts.h"
#include "data/DateTime.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace option_texts;

namespace {

// The boxes are made as wide as these texts in the font in use.
constexpr const char* kWidestDate = "30-Mmm-2000 00:00:00";
constexpr const char* kWidestTime = "00:00:00 MM";

}  // namespace

DisplayPeriodPanel::DisplayPeriodPanel(const Parts& parts, QWidget* parent)
    : QGroupBox(ToQt(parts.Words, kDisplayPeriod), parent),
      parts_(parts),
      controls_(parts.Words, this) {
    new QVBoxLayout(this);
    optPeriodDisplay = controls_.Options(
        "optPeriodDisplay", this, {kDisplayAllData, kDisplayDates, kDisplayTimes, kDisplayDays},
        Available::kYes);
    txtStartUserDisplayPeriod = TextBox("txtStartUserDisplayPeriod", kFirstDate, kWidestDate);
    txtEndUserDisplayPeriod = TextBox("txtEndUserDisplayPeriod", kLastDate, kWidestDate);
    txtStartUserDisplayTime = TextBox("txtStartUserDisplayTime", kFirstTime, kWidestTime);
    txtEndUserDisplayTime = TextBox("txtEndUserDisplayTime", kLastTime, kWidestTime);
    cmbDisplayDayStart = DayList("cmbDisplayDayStart", kFirstDay);
    cmbDisplayDayEnd = DayList("cmbDisplayDayEnd", kLastDay);
    lblDatesErr = MessageLabel("lblDatesErr");
    lblTimesErr = MessageLabel("lblTimesErr");
    lblDaysErr = MessageLabel("lblDaysErr");
    AddRow(1, txtStartUserDisplayPeriod, txtEndUserDisplayPeriod, lblDatesErr);
    AddRow(2, txtStartUserDisplayTime, txtEndUserDisplayTime, lblTimesErr);
    AddRow(3, cmbDisplayDayStart, cmbDisplayDayEnd, lblDaysErr);

    lblPeriod = MessageLabel("lblPeriod");
    lblPeriod->show();
    cmdSetDisplayPeriod = controls_.Button("cmdSetDisplayPeriod", kSetDisplayPeriod);
    layout()->addWidget(lblPeriod);
    layout()->addWidget(cmdSetDisplayPeriod);
    // clicks alone: what the program sets itself is not the user's choice
    connect(optPeriodDisplay, &QButtonGroup::idClicked, this,
            [this](int index) { optPeriodDisplay_Click(index); });
    connect(cmbDisplayDayStart, &QComboBox::activated, this,
            [this](int day) { cmbDisplayDayStart_Click(day); });
    connect(cmbDisplayDayEnd, &QComboBox::activated, this,
            [this](int day) { cmbDisplayDayEnd_Click(day); });
    connect(cmdSetDisplayPeriod, &QPushButton::clicked, this,
            [this] { cmdSetDisplayPeriod_Click(); });
    FillDays(0);
    // a new start always shows all data: the choice is stored, but never read back
    ChooseOption(optPeriodDisplay, 0);
    EnableBoxes();
}

QLineEdit* DisplayPeriodPanel::TextBox(const char* name, const TextRow& which, const char* widest) {
    auto* box = new QLineEdit(this);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(ToQt(parts_.Words, which));
    // the frame of the box takes some room beside the text
    const int margins = 2 * box->fontMetrics().averageCharWidth();
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QString::fromLatin1(widest)) +
                         margins);
    connect(box, &QLineEdit::textEdited, this, [this] { CheckInput(); });
    // the range that was typed is wanted at once
    connect(box, &QLineEdit::returnPressed, this, [this] {
        if (cmdSetDisplayPeriod->isEnabled()) cmdSetDisplayPeriod_Click();
    });
    return box;
}

QComboBox* DisplayPeriodPanel::DayList(const char* name, const TextRow& which) {
    auto* list = new QComboBox(this);
    list->setObjectName(QString::fromLatin1(name));
    list->setAccessibleName(ToQt(parts_.Words, which));
    return list;
}

QLabel* DisplayPeriodPanel::MessageLabel(const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    // it repeats what was typed
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}

void DisplayPeriodPanel::AddRow(int option, QWidget* from, QWidget* to, QLabel* message) {
    auto* row = new QHBoxLayout;
    row->addWidget(from, 1);
    row->addWidget(new QLabel(ToQt(parts_.Words, kTo), this));
    row->addWidget(to, 1);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(20, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(message);
    // the four buttons stand in the layout already; each row goes in behind its button and moves
    // the others down by one
    static_cast<QVBoxLayout*>(layout())->insertLayout(2 * option, column);
}

void DisplayPeriodPanel::FillDays(int startWeekOn) {
    const auto names = parts_.Locale.DayNames();
    for (QComboBox* list : {cmbDisplayDayStart, cmbDisplayDayEnd}) {
        const int chosen = std::max(0, list->currentIndex());
        list->clear();
        for (std::size_t day = 0; day < names.size(); ++day) {
            const std::size_t name = (day + static_cast<std::size_t>(startWeekOn)) % names.size();
            list->addItem(ToQt(names[name]));
        }
        // places in the week stay: all of the week is all of it, whatever day it begins with
        list->setCurrentIndex(chosen);
    }
}

void DisplayPeriodPanel::ShowOptions(const ProgramOptions& options) {
    FillDays(options.StartWeekOn);
    PeriodEntry& entry = parts_.Period.Entry;
    entry.StartTime = options.DisplayTimeFrom;
    entry.EndTime = options.DisplayTimeTo;
    entry.StartDay = options.StartViewDayOn;
    const int last = cmbDisplayDayEnd->findText(ToQt(parts_.Options.Get("EndViewDayOn")));
    // a name of another language is no day of this week
    entry.EndDay = std::max(last < 0 ? 6 : last, entry.StartDay);
    ShowEntry();
    CheckInput();
}

void DisplayPeriodPanel::ShowEntry() {
    const PeriodEntry& entry = parts_.Period.Entry;
    txtStartUserDisplayPeriod->setText(ToQt(entry.StartDate));
    txtEndUserDisplayPeriod->setText(ToQt(entry.EndDate));
    txtStartUserDisplayTime->setText(ToQt(entry.StartTime));
    txtEndUserDisplayTime->setText(ToQt(entry.EndTime));
    cmbDisplayDayStart->setCurrentIndex(entry.StartDay);
    cmbDisplayDayEnd->setCurrentIndex(entry.EndDay);
}

void DisplayPeriodPanel::ShowPlot(GraphType layout, int startWeekOn) {
    layout_ = layout;
    FillDays(startWeekOn);
    ChooseOption(optPeriodDisplay, static_cast<int>(parts_.Period.Option));
    emit OptionShown(static_cast<int>(parts_.Period.Option));
    if (layout == GraphType::kContinuous && !parts_.Plot.Curves().empty()) {
        const AxisRange& range = parts_.Plot.Original.X;
        txtStartUserDisplayPeriod->setText(ToQt(FormatReadingTime(range.Minimum)));
        txtEndUserDisplayPeriod->setText(ToQt(FormatReadingTime(range.Maximum)));
    }
    EnableBoxes();
    CheckInput();
}

void DisplayPeriodPanel::ShowVisibleRange(const QString& text) {
    lblPeriod->setText(text.isEmpty() ? text : ToQt(parts_.Words.Fill(kShownNow, {FromQt(text)})));
}

void DisplayPeriodPanel::EnableBoxes() {
    for (int option = 0; option <= 3; ++option) {
        const bool fits = DisplayPeriod::Fits(static_cast<PeriodOption>(option), layout_);
        optPeriodDisplay->button(option)->setEnabled(fits);
    }
    const PeriodOption chosen = parts_.Period.Option;
    const auto enable = [chosen](PeriodOption option, QWidget* from, QWidget* to) {
        from->setEnabled(chosen == option);
        to->setEnabled(chosen == option);
    };
    enable(PeriodOption::kDates, txtStartUserDisplayPeriod, txtEndUserDisplayPeriod);
    enable(PeriodOption::kTimes, txtStartUserDisplayTime, txtEndUserDisplayTime);
    enable(PeriodOption::kDays, cmbDisplayDayStart, cmbDisplayDayEnd);
}

void DisplayPeriodPanel::CheckInput() {
    parts_.Period.Entry = {
        FromQt(txtStartUserDisplayPeriod->text()), FromQt(txtEndUserDisplayPeriod->text()),
        FromQt(txtStartUserDisplayTime->text()),   FromQt(txtEndUserDisplayTime->text()),
        cmbDisplayDayStart->currentIndex(),        cmbDisplayDayEnd->currentIndex()};
    const PeriodCheck check = parts_.Period.Check();
    const std::string& message = check.StartMessage.empty() ? check.EndMessage : check.StartMessage;
    const auto say = [&](QLabel* label, PeriodOption option) {
        const bool wrong = parts_.Period.Option == option && !message.empty();
        label->setText(wrong ? ToQt(message) : QString());
        label->setVisible(wrong);
    };
    say(lblDatesErr, PeriodOption::kDates);
    say(lblTimesErr, PeriodOption::kTimes);
    say(lblDaysErr, PeriodOption::kDays);
    cmdSetDisplayPeriod->setEnabled(check.CanSet && !parts_.Plot.Curves().empty());
}

void DisplayPeriodPanel::Choose(PeriodOption option) {
    ChooseOption(optPeriodDisplay, static_cast<int>(option));
    optPeriodDisplay_Click(static_cast<int>(option));
}

void DisplayPeriodPanel::optPeriodDisplay_Click(int index) {
    parts_.Options.Save("DisplayPeriod", std::to_string(index));
    parts_.Period.Option = static_cast<PeriodOption>(index);
    EnableBoxes();
    emit OptionShown(index);
    const bool showsData = !parts_.Plot.Curves().empty();
    if (parts_.Period.Option == PeriodOption::kAllData && showsData) {
        // back to the state of all data: the boxes too
        ShowPlot(layout_, parts_.Options.Index("StartWeekOn", 2));
        static_cast<void>(parts_.Navigation.ShowView(parts_.Plot.Original));
        return;
    }
    // wanted: dates are checked a second time
    if (parts_.Period.Option == PeriodOption::kDates) CheckInput();
    CheckInput();
}

void DisplayPeriodPanel::cmbDisplayDayStart_Click(int day) {
    parts_.Options.Save("StartViewDayOn", std::to_string(day));
    if (day > cmbDisplayDayEnd->currentIndex()) {
        cmbDisplayDayEnd->setCurrentIndex(day);
        StoreLastDay();
    }
    CheckInput();
}

void DisplayPeriodPanel::cmbDisplayDayEnd_Click(int /*day*/) {
    StoreLastDay();
    CheckInput();
}

void DisplayPeriodPanel::StoreLastDay() {
    parts_.Options.Save("EndViewDayOn", FromQt(cmbDisplayDayEnd->currentText()));
}

void DisplayPeriodPanel::cmdSetDisplayPeriod_Click() {
    parts_.Options.Save("DisplayTimeFrom", FromQt(txtStartUserDisplayTime->text()));
    parts_.Options.Save("DisplayTimeTo", FromQt(txtEndUserDisplayTime->text()));
    if (const auto window = parts_.Period.Window(parts_.Plot.Original.X)) {
        static_cast<void>(parts_.Navigation.ShowXRange(*window));
    }
}

}  // namespace brask
