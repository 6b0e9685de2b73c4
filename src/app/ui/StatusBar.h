// The line below the window: the file, how much was read of it, the time, and notices.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include "data/DataSet.h"
#include "platform/Clock.h"
#include "platform/Texts.h"
#include "platform/qt/QtUserInterface.h"

namespace brask {

class StatusBar final : public QStatusBar, public NoticeView {
  public:
    StatusBar(const Texts& texts, const Clock& clock, QWidget* parent);

    // Shows the file's name and the counts; nothing without readings.
    void ShowData(const DataSet& readings, const QString& fileName, std::int64_t rejectedLines);
    // Stands until the next load or another notice.
    void ShowNotice(const QString& text) override;

  private:
    // To the minute; asked for once a second.
    void ShowTime();

    const Texts& texts_;
    const Clock& clock_;
    QLabel* lblStatusFile;
    QLabel* lblStatusCounts;
    QLabel* lblStatusTime;
    QTimer* TimerOneSecond;
};

}  // namespace brask
