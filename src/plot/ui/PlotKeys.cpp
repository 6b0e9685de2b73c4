#include "plot/ui/PlotKeys.h"

#include <algorithm>
#include <span>

namespace brask {
namespace {

using enum ChartAction;

struct KeyRow {
    Qt::KeyboardModifiers Modifiers;
    int Key;
    ChartAction Action;
};

constexpr Qt::KeyboardModifiers kPlain = Qt::NoModifier;
constexpr Qt::KeyboardModifiers kShift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;

// Keys that scroll: an arrow names the way that the view goes, so the curves go the other way.
const auto kScrollKeys = std::to_array<KeyRow>({
    {kCtrl, Qt::Key_Left, kScrollRight},
    {kCtrl, Qt::Key_Right, kScrollLeft},
    {kCtrl, Qt::Key_Up, kScrollDownBoth},
    {kCtrl, Qt::Key_Down, kScrollUpBoth},
    {kPlain, Qt::Key_PageUp, kScrollRightFast},
    {kPlain, Qt::Key_PageDown, kScrollLeftFast},
    {kShift, Qt::Key_PageUp, kScrollDownBothFast},
    {kShift, Qt::Key_PageDown, kScrollUpBothFast},
});

const auto kCursorKeys = std::to_array<KeyRow>({
    {kPlain, Qt::Key_Left, kCursorLeft},
    {kPlain, Qt::Key_Right, kCursorRight},
    {kPlain, Qt::Key_Up, kCursorUp},
    {kPlain, Qt::Key_Down, kCursorDown},
    {kShift, Qt::Key_Left, kCursorLeftFast},
    {kShift, Qt::Key_Right, kCursorRightFast},
    {kShift, Qt::Key_Up, kCursorUpFast},
    {kShift, Qt::Key_Down, kCursorDownFast},
    {kPlain, Qt::Key_Home, kMoveCursor},
    {kPlain, Qt::Key_End, kLastPoint},
});

// One letter each, after the action's name.
const auto kOtherKeys = std::to_array<KeyRow>({
    {kPlain, Qt::Key_Minus, kZoomOut},
    {kPlain, Qt::Key_A, kAutoscale},
    {kPlain, Qt::Key_O, kOriginalScale},
    {kPlain, Qt::Key_M, kToggleCursorMode},
    {kPlain, Qt::Key_B, kToggleBitmap},
    {kPlain, Qt::Key_C, kToggleCursors},
    {kPlain, Qt::Key_L, kToggleLegend},
    {kPlain, Qt::Key_F, kToggleFloating},
    {kPlain, Qt::Key_Y, kToggleAxis},
    {kPlain, Qt::Key_P, kOpenProperties},
    {kPlain, Qt::Key_Z, kEnterKeyboardZoom},
    {kCtrl, Qt::Key_Insert, kCopyChart},
});

const auto kRectangleKeys = std::to_array<KeyRow>({
    {kShift, Qt::Key_Left, kNarrowRectangle},
    {kShift, Qt::Key_Right, kWidenRectangle},
    {kShift, Qt::Key_Up, kHeightenRectangle},
    {kShift, Qt::Key_Down, kLowerRectangle},
    {kPlain, Qt::Key_Return, kExitKeyboardZoom},
    {kPlain, Qt::Key_Enter, kExitKeyboardZoom},
    {kShift, Qt::Key_Return, kExitKeyboardZoomBoth},
    {kShift, Qt::Key_Enter, kExitKeyboardZoomBoth},
    {kPlain, Qt::Key_Escape, kCancelKeyboardZoom},
});

std::optional<ChartAction> Find(std::span<const KeyRow> rows, Qt::KeyboardModifiers modifiers,
                                int key) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const KeyRow& row) {
        return row.Key == key && row.Modifiers == modifiers;
    });
    if (found == rows.end()) return std::nullopt;
    return found->Action;
}

// The block of digits has the same keys a second time.
Qt::KeyboardModifiers ModifiersOf(const QKeyEvent& key) {
    return key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

}  // namespace

std::optional<ChartAction> ActionOfKey(const QKeyEvent& key, bool takesArrows) {
    Qt::KeyboardModifiers modifiers = ModifiersOf(key);
    if (const auto action = Find(kOtherKeys, modifiers, key.key())) return action;
    if (takesArrows) {
        if (const auto action = Find(kCursorKeys, modifiers, key.key())) return action;
    } else if (modifiers == kPlain && key.key() >= Qt::Key_Left && key.key() <= Qt::Key_Down) {
        modifiers = kCtrl;
    }
    return Find(kScrollKeys, modifiers, key.key());
}

std::optional<ChartAction> RectangleActionOfKey(const QKeyEvent& key) {
    return Find(kRectangleKeys, ModifiersOf(key), key.key());
}

}  // namespace brask
