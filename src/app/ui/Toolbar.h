// The toolbar `Toolbar1`: buttons with keys, dispatched through the commands.
#pragma once

#include <QMap>
#include <QToolBar>
#include <string>

#include "app/Commands.h"
#include "app/ui/MenuBar.h"
#include "platform/Texts.h"

namespace brask {

class Toolbar final : public QToolBar {
  public:
    Toolbar(const Texts& texts, Commands& commands, const MenuBar& menus, QWidget* parent);

    // Creates the buttons of the table, in order.
    void BuildToolbar();
    // Gives the button with this key the enabled state of its menu item and refreshes its tool
    // tip. Nothing for a key without button or without menu item.
    void SyncToolbarButton(const std::string& key);
    void SyncAll();
    // Changes a button's tool tip.
    void SetToolTip(const std::string& key, const QString& tip);
    // The button's action; nullptr for a key without button.
    QAction* Button(const std::string& key) const;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void DrawIcons();

    const Texts& texts_;
    Commands& commands_;
    const MenuBar& menus_;
    QMap<QString, QAction*> buttons_;  // by key
    QMap<QString, QString> tips_;
};

}  // namespace brask
