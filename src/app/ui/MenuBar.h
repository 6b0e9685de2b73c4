// The menus of the main window, built from the table; every item runs its command.
#pragma once

#include <QActionGroup>
#include <QMap>
#include <QMenuBar>

#include "app/Commands.h"
#include "platform/Texts.h"

namespace brask {

class MenuBar {
  public:
    // Fills the bar of a window. Items are objects named as in the table.
    MenuBar(QMenuBar& bar, const Texts& texts, Commands& commands);

    QAction* Item(const QString& name) const { return items_.value(name); }
    QMenu* Submenu(const QString& name) const { return menus_.value(name); }
    // Gives every item the state that its command has now; a submenu is enabled with its items.
    void SyncEnabled();
    // Sets a check or radio mark without running anything.
    void SetChecked(const QString& name, bool checked);

  private:
    void AddItem(const struct MenuRow& row, const Texts& texts);

    Commands& commands_;
    QMap<QString, QMenu*> menus_;
    QMap<QString, QAction*> items_;
    QMap<QString, QActionGroup*> radioGroups_;
};

}  // namespace brask
