#include "app/ui/TabControl.h"

#include <QMouseEvent>
#include <QTabBar>

namespace brask {
namespace {

// Qt's own bar keeps silent about a click on a disabled tab; users would not learn why.
class ClickableTabBar final : public QTabBar {
  public:
    explicit ClickableTabBar(TabControl* owner) : QTabBar(owner), owner_(owner) {}

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        const int index = tabAt(event->position().toPoint());
        if (index >= 0 && !isTabEnabled(index)) {
            emit owner_->DisabledTabClicked(index);
            return;
        }
        QTabBar::mousePressEvent(event);
    }

  private:
    TabControl* owner_;
};

}  // namespace

TabControl::TabControl(QWidget* parent) : QTabWidget(parent) {
    setObjectName(QStringLiteral("SSTab1"));
    // Qt takes another bar only before the first page
    setTabBar(new ClickableTabBar(this));
    setDocumentMode(true);
}

}  // namespace brask
