// The line below the window: the selected reading, what is in view, the file, how much was read of
// it, the time, and notices.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include "data/DataSet.h"
#include "platform/Clock.h"
#include "platform/Texts.h"
#include "platform/qt/QtUserInterface.h"

namespace brask {

// Texts and clock must outlive it.
class StatusBar final : public QStatusBar, public NoticeView {
  public:
    StatusBar(const Texts& texts, const Clock& clock, QWidget* parent);

    // Shows the file's name and the counts; nothing without readings.
    // Called when a load has ended. The name is shown as it is, never read as markup; lines that
    // were rejected are told even when no reading is left.
    void ShowData(const DataSet& readings, const QString& fileName, std::int64_t rejectedLines);
    // Both values of the selected reading, and the visible X range; empty texts for none.
    void ShowView(const QString& selected, const QString& range);
    // Stands until another notice takes its place or the next load begins.
    void ShowNotice(const QString& text) override;

  private:
    // To the minute; asked for once a second.
    void ShowTime();

    const Texts& texts_;
    // Not the system's own clock, so that tests can set the time.
    const Clock& clock_;
    // At the right end, where notices do not cover them.
    QLabel* lblStatusSelected;
    QLabel* lblStatusRange;
    QLabel* lblStatusFile;
    QLabel* lblStatusCounts;
    QLabel* lblStatusTime;
    QTimer* TimerOneSecond;
};

}  // namespace brask
