// Menus and toolbar: what a user's hand meets.
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QToolButton>

#include "WindowFixture.h"
#include "app/ToolbarTable.h"

namespace brask {
namespace {

using Menus = WindowFixture;

QChar Mnemonic(const QString& caption) {
    const auto at = caption.indexOf(QLatin1Char('&'));
    return at < 0 ? QChar() : caption.at(at + 1).toLower();
}

// Two entries with one letter would make the key jump between them.
void ExpectOwnLetters(const QList<QAction*>& actions, const QString& where) {
    QSet<QChar> letters;
    for (const QAction* action : actions) {
        if (action->isSeparator()) continue;
        const QChar letter = Mnemonic(action->text());
        EXPECT_FALSE(letter.isNull()) << FromQt(where + action->text());
        EXPECT_FALSE(letters.contains(letter)) << FromQt(where + action->text());
        letters.insert(letter);
        if (action->menu() != nullptr) ExpectOwnLetters(action->menu()->actions(), action->text());
    }
}

TEST_F(Menus, EveryItemHasALetterOfItsOwnAndEveryShortcutOneItem) {
    Start();
    ExpectOwnLetters(Window().menuBar()->actions(), QStringLiteral("bar: "));
    QSet<QString> shortcuts;
    for (const QAction* action : Window().findChildren<QAction*>()) {
        const QString keys = action->shortcut().toString();
        if (keys.isEmpty()) continue;
        EXPECT_FALSE(shortcuts.contains(keys)) << FromQt(keys);
        shortcuts.insert(keys);
    }
    EXPECT_TRUE(shortcuts.contains(QStringLiteral("Ctrl+O")));
}

TEST_F(Menus, EveryControlCanBeNamedByAScreenReader) {
    Start();
    for (const auto* button : Window().findChildren<QAbstractButton*>()) {
        // parts that Qt makes of its own accord
        if (button->objectName().startsWith(QStringLiteral("qt_"))) continue;
        if (button->inherits("QTableCornerButton")) continue;
        EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty() &&
                     button->toolTip().isEmpty())
            << FromQt(button->objectName()) << " in " << FromQt(button->parent()->objectName());
    }
}

TEST_F(Menus, EveryToolbarButtonHasItsPictureTipAndState) {
    Start();
    Open("/data/three.csv");
    auto* toolbar = Find<Toolbar>("Toolbar1");
    for (const ToolbarRow& row : ToolbarButtons()) {
        if (*row.Key == '\0') continue;
        const QAction* button = toolbar->Button(row.Key);
        ASSERT_NE(button, nullptr) << row.Key;
        EXPECT_FALSE(button->icon().isNull()) << row.Key;
        EXPECT_FALSE(button->toolTip().isEmpty()) << row.Key;
        if (*row.Follows != '\0') {
            EXPECT_EQ(button->isEnabled(), Item(row.Follows)->isEnabled()) << row.Key;
        }
    }
}

TEST_F(Menus, ToolbarRunsTheCommandOfItsMenuItem) {
    Start();
    Choose.Answers = {QStringLiteral("/data/three.csv")};
    Find<Toolbar>("Toolbar1")->Button("Open")->trigger();
    EXPECT_EQ(Data.ReadingCount, 3);
    Plot.Clear();
    Find<Toolbar>("Toolbar1")->Button("Refresh")->trigger();
    EXPECT_EQ(Plot.Curves().size(), 2U);
}

}  // namespace
}  // namespace brask
