// A curve over arrays of its own.
#pragma once

#include "plot/Chart.h"

namespace brask {

inline Curve CurveOf(std::vector<double> x, std::vector<double> y) {
    Curve curve;
    curve.OwnX = std::make_shared<const std::vector<double>>(std::move(x));
    curve.OwnY = std::make_shared<const std::vector<double>>(std::move(y));
    curve.X = *curve.OwnX;
    curve.Y = *curve.OwnY;
    curve.PyramidX = std::make_shared<const CurvePyramid>(curve.X);
    curve.PyramidY = std::make_shared<const CurvePyramid>(curve.Y);
    return curve;
}

}  // namespace brask
