// The axes of the drawing library as the view that readings are placed in.
#pragma once

#include <qcustomplot.h>

#include "plot/PixelView.h"

namespace brask {

// The inside of the axes with both ranges, as they stand now. At least one pixel wide and high,
// however small the window is.
PixelView ViewOfAxes(const QCPAxis& keyAxis, const QCPAxis& valueAxis);

}  // namespace brask
