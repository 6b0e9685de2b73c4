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

// A gas and a temperature curve over the same X, in a chart that was built with these axes.
inline void ShowPair(Chart& chart, const std::vector<double>& x, const std::vector<double>& gas,
                     const std::vector<double>& temperature, const ViewRecord& axes) {
    chart.Clear();
    chart.AddCurve(CurveOf(x, gas));
    Curve curve = CurveOf(x, temperature);
    curve.Axis = ChartAxis::kRight;
    chart.AddCurve(curve);
    chart.SetView(axes);
    chart.Original = axes;
}

}  // namespace brask
