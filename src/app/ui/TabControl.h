// The tab control `SSTab1`. A click on a disabled tab is told to the owner, who knows why it is
// disabled.
#pragma once

#include <QTabWidget>

namespace brask {

class TabControl final : public QTabWidget {
    Q_OBJECT

  public:
    explicit TabControl(QWidget* parent);

    // The tab does not change. Sent by a press of any mouse button; keys pass disabled tabs by.
  signals:
    void DisabledTabClicked(int index);
};

}  // namespace brask
