#include "app/ui/MenuBar.h"

#include <algorithm>

#include "app/MenuTable.h"
#include "platform/qt/QtText.h"

namespace brask {

MenuBar::MenuBar(QMenuBar& bar, const Texts& texts, Commands& commands) : commands_(commands) {
    for (const MenuRow& row : MenuRows()) {
        QMenu* const parent = menus_.value(QString::fromLatin1(row.Menu));
        if (row.Kind == MenuKind::kSeparator) {
            parent->addSeparator();
        } else if (parent == nullptr || row.Kind == MenuKind::kSubmenu) {
            // a row that names no menu is a menu of the bar itself
            const QString caption = ToQt(texts, row.Caption);
            QMenu* const menu = parent == nullptr ? bar.addMenu(caption) : parent->addMenu(caption);
            menu->setObjectName(QString::fromLatin1(row.Name));
            menus_.insert(menu->objectName(), menu);
        } else {
            AddItem(row, texts);
        }
    }
    SyncEnabled();
}

void MenuBar::AddItem(const MenuRow& row, const Texts& texts) {
    QMenu* const menu = menus_.value(QString::fromLatin1(row.Menu));
    QAction* const item = menu->addAction(ToQt(texts, row.Caption));
    item->setObjectName(QString::fromLatin1(row.Name));
    // the table has key texts in English; users read them in their own language
    item->setShortcut(QKeySequence(QString::fromLatin1(row.Shortcut), QKeySequence::PortableText));
    item->setCheckable(row.Kind == MenuKind::kCheck || row.Kind == MenuKind::kRadio);
    if (row.Kind == MenuKind::kRadio) {
        QActionGroup*& group = radioGroups_[menu->objectName()];
        if (group == nullptr) group = new QActionGroup(menu);
        group->addAction(item);
    }
    const std::string name = row.Name;
    // triggered, not toggled: SetChecked moves a mark without running anything
    QObject::connect(item, &QAction::triggered, item, [this, name] { commands_.Run(name); });
    items_.insert(item->objectName(), item);
}

void MenuBar::SyncEnabled() {
    // without as_const a map that is shared would be copied for the loop
    for (QAction* item : std::as_const(items_)) {
        item->setEnabled(commands_.Enabled(FromQt(item->objectName())));
    }
    for (QMenu* menu : std::as_const(menus_)) {
        // menus of the bar always open: what is in them can be looked at
        if (menu->parentWidget() == nullptr || !menu->parentWidget()->inherits("QMenu")) continue;
        const auto actions = menu->actions();
        menu->setEnabled(!commands_.Busy() &&
                         std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
                             return !action->isSeparator() && action->isEnabled();
                         }));
    }
}

void MenuBar::SetChecked(const QString& name, bool checked) { Item(name)->setChecked(checked); }

}  // namespace brask
