#include "plot/ChartAction.h"

#include <array>

namespace brask {
namespace {

// Users know the names with these capitals; 25 and 26 differ in one letter only.
const auto kNames = std::to_array<TextRow>({
    TextRow("action", "Last Point"),
    TextRow("action", "Zoom out"),
    TextRow("action", "Toggle cursor mode"),
    TextRow("action", "Autoscale"),
    TextRow("action", "Original scale"),
    TextRow("action", "Enter Mouse Zoom"),
    TextRow("action", "Exit Zoom"),
    TextRow("action", "Cancel zoom mode"),
    TextRow("action", "Move zoom rectangle"),
    TextRow("action", "Move cursor"),
    TextRow("action", "Toggle bitmap mode"),
    TextRow("action", "Scroll left"),
    TextRow("action", "Scroll left fast"),
    TextRow("action", "Scroll right"),
    TextRow("action", "Scroll right fast"),
    TextRow("action", "Scroll up"),
    TextRow("action", "Scroll up fast"),
    TextRow("action", "Scroll down"),
    TextRow("action", "Scroll down fast"),
    TextRow("action", "Scroll cursor Left"),
    TextRow("action", "Scroll cursor Left fast"),
    TextRow("action", "Scroll cursor right"),
    TextRow("action", "Scroll cursor right fast"),
    TextRow("action", "Scroll Cursor Up"),
    TextRow("action", "Scroll cursor up fast"),
    TextRow("action", "Scroll Cursor down"),
    TextRow("action", "Scroll cursor down"),
    TextRow("action", "Toggle cursors"),
    TextRow("action", "Toggle show legend"),
    TextRow("action", "Enter KBD Zoom"),
    TextRow("action", "Exit KBD Zoom"),
    TextRow("action", "Cancel keyboard zoom"),
    TextRow("action", "Decrease zoom rectangle width"),
    TextRow("action", "Increase zoom rectangle width"),
    TextRow("action", "Increase zoom rectangle height"),
    TextRow("action", "Decrease zoom rectangle height"),
    TextRow("action", "Toggle cursors floating"),
    TextRow("action", "Copy chart to clipboard"),
    TextRow("action", "Open property sheet"),
    TextRow("action", "Toggle between Y and Y1 axis"),
    TextRow("action", "Exit Zoom Both"),
    TextRow("action", "Exit KBD Zoom Both"),
    TextRow("action", "Scroll up both y-axes"),
    TextRow("action", "Scroll up both y-axes fast"),
    TextRow("action", "Scroll down both y-axes"),
    TextRow("action", "Scroll down both y-axes fast"),
});

constexpr auto kDifferent = TextRow("action", "Different executed: %1");

}  // namespace

std::string ActionName(int code, const Texts& texts) {
    if (code < 0 || code >= static_cast<int>(kNames.size())) {
        return texts.Fill(kDifferent, {std::to_string(code)});
    }
    return texts.Find(kNames[static_cast<std::size_t>(code)]);
}

}  // namespace brask
