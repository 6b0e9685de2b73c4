// The buttons of the toolbar and the keys that its dispatcher knows.
#pragma once

#include <span>
#include <string_view>

#include "platform/Texts.h"

namespace brask {

struct ToolbarRow {
    const char* Key;      // what the dispatcher compares; "" for a separator
    TextRow ToolTip;      // at start
    const char* Image;    // the picture's name
    const char* Command;  // menu item whose command it runs
    const char* Follows;  // menu item whose enabled state it takes; "" for none
};

// The buttons in order.
std::span<const ToolbarRow> ToolbarButtons();
// Keys that have a command but no button yet.
std::span<const ToolbarRow> ToolbarKeysWithoutButton();
// The row of a key among both, exact; nullptr when there is none.
const ToolbarRow* FindToolbarRow(std::string_view key);

}  // namespace brask
