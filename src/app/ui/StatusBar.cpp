#include "app/ui/StatusBar.h"

#include "app/AppTexts.h"
#include "app/ui/ElidedLabel.h"
#include "data/DateTime.h"
#include "platform/qt/QtText.h"

namespace brask {
namespace {

QLabel* NamedLabel(const char* name, QWidget* parent) {
    auto* label = new ElidedLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

}  // namespace

StatusBar::StatusBar(const Texts& texts, const Clock& clock, QWidget* parent)
    : QStatusBar(parent),
      texts_(texts),
      clock_(clock),
      lblStatusSelected(NamedLabel("lblStatusSelected", this)),
      lblStatusRange(NamedLabel("lblStatusRange", this)),
      lblStatusFile(NamedLabel("lblStatusFile", this)),
      lblStatusCounts(NamedLabel("lblStatusCounts", this)),
      lblStatusTime(NamedLabel("lblStatusTime", this)),
      TimerOneSecond(new QTimer(this)) {
    setObjectName(QStringLiteral("StatusBar1"));
    // permanent ones stay in sight while a notice is shown
    addPermanentWidget(lblStatusSelected);
    addPermanentWidget(lblStatusRange);
    addPermanentWidget(lblStatusFile);
    addPermanentWidget(lblStatusCounts);
    addPermanentWidget(lblStatusTime);
    // a notice needs the room to be read, and is in the tool tip as a whole
    connect(this, &QStatusBar::messageChanged, this, [this](const QString& notice) {
        lblStatusRange->setVisible(notice.isEmpty());
        setToolTip(AsToolTip(notice));
    });
    TimerOneSecond->setObjectName(QStringLiteral("TimerOneSecond"));
    connect(TimerOneSecond, &QTimer::timeout, this, [this] { ShowTime(); });
    // more often than the minute changes, so that it changes on time
    TimerOneSecond->start(1000);
    ShowTime();
}

void StatusBar::ShowData(const DataSet& readings, const QString& fileName,
                         std::int64_t rejectedLines) {
    const bool any = readings.ReadingCount > 0;
    lblStatusFile->setText(any ? fileName : QString());
    const std::string count = std::to_string(readings.ReadingCount);
    const std::string text =
        rejectedLines == 0
            ? texts_.Fill(app_texts::kStatusReadings, {count})
            : texts_.Fill(app_texts::kStatusRejected, {count, std::to_string(rejectedLines)});
    // a file of bad lines alone has something to tell as well
    lblStatusCounts->setText(any || rejectedLines > 0 ? ToQt(text) : QString());
}

void StatusBar::ShowView(const QString& selected, const QString& range) {
    lblStatusSelected->setText(selected);
    lblStatusRange->setText(range);
}

// No time limit: a notice may come while nobody looks.
void StatusBar::ShowNotice(const QString& text) { showMessage(text); }

void StatusBar::ShowTime() {
    // the first 17 characters end with the minutes
    lblStatusTime->setText(ToQt(FormatReadingTime(clock_.Now()).substr(0, 17)));
}

}  // namespace brask
