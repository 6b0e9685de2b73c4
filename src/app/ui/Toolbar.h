// The toolbar `Toolbar1`: buttons with keys, dispatched through the commands.
#pragma once

#include <QMap>
#include <QToolBar>
#include <string>

#include "app/Commands.h"
#include "app/ui/MenuBar.h"
#include "platform/Texts.h"

namespace brask {

// Buttons never decide anything: they run the commands of the menu and copy its state.
class Toolbar final : public QToolBar {
  public:
    // Empty at first. The references must outlive it.
    Toolbar(const Texts& texts, Commands& commands, const MenuBar& menus, QWidget* parent);

    // Creates the buttons of the table, in order.
    // To be called once, when the menus are there.
    void BuildToolbar();
    // Gives the button with this key the enabled state of its menu item and refreshes its tool
    // tip. Nothing for a key without button or without menu item.
    void SyncToolbarButton(const std::string& key);
    // Every button, after any change of the commands.
    void SyncAll();
    // Changes a button's tool tip.
    // Also what screen readers call the button, and remembered for a button that does not exist.
    void SetToolTip(const std::string& key, const QString& tip);
    // The button's action; nullptr for a key without button.
    // Owned by the toolbar.
    QAction* Button(const std::string& key) const;

  protected:
    // Redraws the icons when the desktop turns dark or light.
    void changeEvent(QEvent* event) override;

  private:
    void DrawIcons();

    const Texts& texts_;
    Commands& commands_;
    const MenuBar& menus_;
    QMap<QString, QAction*> buttons_;  // by key
    // Also by key; tips change while the program runs.
    QMap<QString, QString> tips_;
};

}  // namespace brask
