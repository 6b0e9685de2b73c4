// The menus of the main window, built from the table; every item runs its command.
#pragma once

#include <QActionGroup>
#include <QMap>
#include <QMenuBar>

#include "app/Commands.h"
#include "platform/Texts.h"

namespace brask {

// Not a widget: the bar, its menus and items belong to the window, and must outlive this.
class MenuBar {
  public:
    // Fills the bar of a window. Items are objects named as in the table.
    MenuBar(QMenuBar& bar, const Texts& texts, Commands& commands);

    // Null for a name without item or menu; submenus are not items.
    QAction* Item(const QString& name) const { return items_.value(name); }
    QMenu* Submenu(const QString& name) const { return menus_.value(name); }
    // Gives every item the state that its command has now; a submenu is enabled with its items.
    // Menus of the bar itself always open, so that users see what the program can do.
    void SyncEnabled();
    // Sets a check or radio mark without running anything.
    // The item must exist. In a radio menu the mark moves there from its neighbour.
    void SetChecked(const QString& name, bool checked);

  private:
    // The row's menu must have been made before: the table lists menus before their items.
    void AddItem(const struct MenuRow& row, const Texts& texts);

    Commands& commands_;
    QMap<QString, QMenu*> menus_;
    QMap<QString, QAction*> items_;
    // By the name of the menu: one radio group a menu.
    QMap<QString, QActionGroup*> radioGroups_;
};

}  // namespace brask
