// Which key runs which action of the chart.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "plot/ChartAction.h"

namespace brask {

// The action of a key without a zoom rectangle being drawn by keyboard; nothing for a key that the
// plot has no use for. `takesArrows`: plain arrows move the cursor, otherwise they scroll.
std::optional<ChartAction> ActionOfKey(const QKeyEvent& key, bool takesArrows);

// The same while the keyboard draws a zoom rectangle; arrows that move it are not among them.
std::optional<ChartAction> RectangleActionOfKey(const QKeyEvent& key);

}  // namespace brask
