// The actions of the charting component, by the numbers and names that they have always had.
#pragma once

#include <string>

#include "platform/Texts.h"

namespace brask {

enum class ChartAction {
    kLastPoint = 0,
    kZoomOut = 1,
    kToggleCursorMode = 2,
    kAutoscale = 3,
    kOriginalScale = 4,
    kEnterMouseZoom = 5,
    kExitZoom = 6,
    kCancelZoom = 7,
    kMoveZoomRectangle = 8,
    kMoveCursor = 9,
    kToggleBitmap = 10,
    // "left" and "right" say where the curves go, not the view
    kScrollLeft = 11,
    kScrollLeftFast = 12,
    kScrollRight = 13,
    kScrollRightFast = 14,
    kScrollUp = 15,
    kScrollUpFast = 16,
    kScrollDown = 17,
    kScrollDownFast = 18,
    kCursorLeft = 19,
    kCursorLeftFast = 20,
    kCursorRight = 21,
    kCursorRightFast = 22,
    kCursorUp = 23,
    kCursorUpFast = 24,
    kCursorDown = 25,
    kCursorDownFast = 26,
    kToggleCursors = 27,
    kToggleLegend = 28,
    kEnterKeyboardZoom = 29,
    kExitKeyboardZoom = 30,
    kCancelKeyboardZoom = 31,
    kNarrowRectangle = 32,
    kWidenRectangle = 33,
    kHeightenRectangle = 34,
    kLowerRectangle = 35,
    kToggleFloating = 36,
    kCopyChart = 37,
    kOpenProperties = 38,
    kToggleAxis = 39,
    kExitZoomBoth = 40,
    kExitKeyboardZoomBoth = 41,
    kScrollUpBoth = 42,
    kScrollUpBothFast = 43,
    kScrollDownBoth = 44,
    kScrollDownBothFast = 45,
};

// The action's name; any code that is no action gives "Different executed: " and the code.
std::string ActionName(int code, const Texts& texts);

}  // namespace brask
