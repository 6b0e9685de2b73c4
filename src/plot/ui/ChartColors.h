// The chart's colours as the drawing library takes them.
#pragma once

#include <QColor>

#include "data/ColorValue.h"

namespace brask {

// Always opaque: stored colours have no transparency.
inline QColor ToColor(ColorValue color) { return {color.Red(), color.Green(), color.Blue()}; }

}  // namespace brask
