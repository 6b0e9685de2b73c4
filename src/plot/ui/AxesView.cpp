#include "plot/ui/AxesView.h"

#include <algorithm>

namespace brask {

namespace {

AxisRange RangeOf(const QCPAxis& axis) { return {axis.range().lower, axis.range().upper}; }

}  // namespace

PixelView ViewOfAxes(const QCPAxis& keyAxis, const QCPAxis& valueAxis) {
    const QRect rect = keyAxis.axisRect()->rect();
    PixelView view({1.0 * rect.left(), 1.0 * rect.top(), std::max(1.0, 1.0 * rect.width()),
                    std::max(1.0, 1.0 * rect.height())},
                   RangeOf(keyAxis), RangeOf(valueAxis));
    if (keyAxis.rangeReversed()) view.ReverseX();
    if (valueAxis.rangeReversed()) view.ReverseY();
    return view;
}

}  // namespace brask
