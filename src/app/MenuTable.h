// Every menu and menu item of the main window, in the order in which they stand. What an item does
// is registered under its name in Commands; an item whose command does not exist yet is disabled.
#pragma once

#include <span>
#include <string_view>

#include "platform/Texts.h"

namespace brask {

enum class MenuKind {
    kItem,
    kCheck,      // with a check mark
    kRadio,      // one of its menu is marked
    kSubmenu,    // a menu of its own, whose rows name it as their menu
    kSeparator,  // a line; has no name
};

// What must be there before a command makes sense. More than this (a selection, a zoom to undo) is
// withheld by the command's own part of the program.
enum class CommandNeed { kNothing, kReadings };

// Commands are registered, and items found, by their names.
struct MenuRow {
    const char* Menu;      // name of the menu that it stands in; "" for the menu bar
    const char* Name;      // object name
    TextRow Caption;       // with mnemonic
    const char* Shortcut;  // portable key text, "" for none
    MenuKind Kind;
    CommandNeed Need;
};

std::span<const MenuRow> MenuRows();
// The row of that name; nullptr when there is none.
// Searches the table from its start: it has some eighty rows.
const MenuRow* FindMenuRow(std::string_view name);

}  // namespace brask
