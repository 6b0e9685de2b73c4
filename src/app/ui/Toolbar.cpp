#include "app/ui/Toolbar.h"

#include <QEvent>

#include "app/ToolbarTable.h"
#include "app/ui/IconStore.h"
#include "platform/qt/QtText.h"

namespace brask {

Toolbar::Toolbar(const Texts& texts, Commands& commands, const MenuBar& menus, QWidget* parent)
    : QToolBar(parent), texts_(texts), commands_(commands), menus_(menus) {
    setObjectName(QStringLiteral("Toolbar1"));
    setMovable(false);
    setIconSize({24, 24});
    // the window's own menu there could hide the toolbar, and users would not find it again
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void Toolbar::BuildToolbar() {
    for (const ToolbarRow& row : ToolbarButtons()) {
        const std::string key = row.Key;
        if (key.empty()) {
            addSeparator();
            continue;
        }
        QAction* const button = addAction(ToQt(key));
        // for buttons that follow no menu item; SyncAll decides about the others
        button->setEnabled(commands_.Registered(row.Command));
        // the image's name has no blank, so it can name the object
        QWidget* const widget = widgetForAction(button);
        widget->setObjectName(QStringLiteral("Toolbar1_") + QString::fromLatin1(row.Image));
        connect(button, &QAction::triggered, this,
                [this, key] { commands_.ToolbarButtonClick(key); });
        buttons_.insert(ToQt(key), button);
        SetToolTip(key, ToQt(texts_, row.ToolTip));
    }
    DrawIcons();
    SyncAll();
}

QAction* Toolbar::Button(const std::string& key) const { return buttons_.value(ToQt(key)); }

void Toolbar::SyncToolbarButton(const std::string& key) {
    QAction* const button = Button(key);
    const ToolbarRow* const row = FindToolbarRow(key);
    if (button == nullptr || row == nullptr) return;
    // an empty name finds no item, and the button stays as it is
    if (const QAction* item = menus_.Item(QString::fromLatin1(row->Follows))) {
        button->setEnabled(item->isEnabled());
    }
    button->setToolTip(tips_.value(ToQt(key)));
}

void Toolbar::SyncAll() {
    for (const ToolbarRow& row : ToolbarButtons()) SyncToolbarButton(row.Key);
}

void Toolbar::SetToolTip(const std::string& key, const QString& tip) {
    tips_.insert(ToQt(key), tip);
    QAction* const button = Button(key);
    if (button == nullptr) return;
    button->setToolTip(tip);
    // buttons show pictures alone; without a name they are read out by their keys
    widgetForAction(button)->setAccessibleName(tip);
}

void Toolbar::DrawIcons() {
    for (const ToolbarRow& row : ToolbarButtons()) {
        if (QAction* button = Button(row.Key)) {
            button->setIcon(DrawnIcon(QString::fromLatin1(row.Image), palette()));
        }
    }
}

void Toolbar::changeEvent(QEvent* event) {
    QToolBar::changeEvent(event);
    // light ink for dark windows, and back
    if (event->type() == QEvent::PaletteChange) DrawIcons();
}

}  // namespace brask
