// The charting component: what the plot consists of, and its rules. Drawing it is DynaPlot's work.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "data/ColorValue.h"
#include "plot/CurvePyramid.h"

namespace brask {

enum class ChartAxis { kLeft, kRight };
enum class LineStyle { kSolid, kDotted };
// The component's own codes.
enum class CurveStyle { kLine = 0, kPoint = 2, kLineWithMarkers = 8 };

// The two ends in the axis's own values: serials, hours or days on X, ppm on the left, the
// temperature's unit on the right. Nothing is promised about their order.
struct AxisRange {
    double Minimum = 0;
    double Maximum = 1;
    bool operator==(const AxisRange&) const = default;
};

// An axis keeps the values that it was given, also those that cannot be drawn as they are (equal
// or inverted): drawing makes do.
class ChartAxisScale {
  public:
    const AxisRange& Range() const { return range_; }
    // Sets both ends together, in any order.
    void SetRange(double minimum, double maximum) { range_ = {minimum, maximum}; }
    // Set one end; false, and nothing changed, when the minimum would come to lie above the
    // maximum or the value is not finite.
    bool SetMinimum(double minimum);
    bool SetMaximum(double maximum);

    // The axis does not look at these two; whoever builds the plot sets them.
    std::string Title;  // UTF-8, lines joined by CR LF
    ColorValue Color;   // of its labels and title

  private:
    AxisRange range_;
};

// What all three axes show: one entry of the zoom histories.
struct ViewRecord {
    AxisRange X;   // serials, hours or days
    AxisRange Y;   // left, ppm
    AxisRange Y1;  // right, the temperature's unit
    bool operator==(const ViewRecord&) const = default;
};

// Whether a range can be shown as it is: finite, in order, and wide enough for double precision to
// tell its ends and the middle apart.
bool IsShowable(const AxisRange& range);

// One tick of the X axis. Positions outside the range in view are passed over, so a table serves
// every zoom.
struct TickLabel {
    double Position = 0;
    std::string Text;
    bool Visible = true;  // a hidden label still has its tick
};

// The X axis is numeric with a table of labels of its own, or a date axis.
struct XAxisLabels {
    std::vector<TickLabel> Custom;  // used unless a date format is set
    std::string DateFormat;         // such as "%d-%b-%Y\n%X"; empty for a numeric axis
    // How much of a numeric axis one day takes: views that show next to none of the table's labels
    // then get times of day instead. 0 for an axis that shows no time.
    double UnitsPerDay = 0;
};

struct MarkerStyle {
    ColorValue Color;
    double Size = 5;  // pixels across
};

// One curve. X and Y are shared: spans into arrays that somebody else owns and that stay until the
// curves are cleared, or into OwnX and OwnY.
// Copying a curve is cheap: no reading is copied with it.
struct Curve {
    // Read back by IsTemperatureCurve and PeriodName, and thus never translated.
    std::string Name;
    // Of equal length, in the order of the file; X may run backwards, and either may hold values
    // that are not finite, which are not drawn.
    std::span<const double> X;
    std::span<const double> Y;
    std::shared_ptr<const std::vector<double>> OwnX;  // keep X and Y alive when the curve has
    std::shared_ptr<const std::vector<double>> OwnY;  // arrays of its own; may be empty
    std::shared_ptr<const CurvePyramid> PyramidX;     // always present; curves with the same X
    std::shared_ptr<const CurvePyramid> PyramidY;     // share theirs
    ChartAxis Axis = ChartAxis::kLeft;
    ColorValue Color;
    LineStyle Line = LineStyle::kSolid;
    double LineWidth = 1;  // pixels
    CurveStyle Style = CurveStyle::kLine;
    MarkerStyle Marker;
};

// A reading as a point of a curve.
struct ChartPoint {
    std::size_t Curve = 0;  // index among the curves
    std::size_t Point = 0;  // index within the curve
    bool operator==(const ChartPoint&) const = default;
};

// How the selected point is marked; the component's own codes.
enum class CursorStyle {
    kCross = 1,
    kVerticalLine = 3,
    kHorizontalLine = 4,
    kCircle = 5,
    kFilledBox = 8,
    kSquare = 9,
    kDiamond = 10,
};

// A place within the axes as fractions of their width and height, from the top left corner: it
// means the same whatever the size of the window.
struct ChartPlace {
    double X = 0.5;
    double Y = 0.5;
};

struct ChartCursor {
    CursorStyle Style = CursorStyle::kSquare;
    bool Shown = true;
    // Arrow keys move the cursor; otherwise they scroll the view.
    bool TakesArrows = true;
    // A floating cursor stands anywhere within the axes and is bound to no reading.
    std::optional<ChartPlace> Floating;
};

// The rectangle that the next zoom will show, while it is being drawn. Corners in any order.
struct ZoomRectangle {
    ChartPlace From;
    ChartPlace To;
    bool ByKeyboard = false;
};

// The two lines above the axes, both UTF-8.
struct TitleBlock {
    std::string FontName = "arial";
    int FontSize = 15;  // points
    std::string Title;
    std::string Caption;  // the second line
};

// What lies behind the curves. A picture that cannot be read leaves the colours alone.
struct ChartBackground {
    std::string PictureFile;  // empty for none
    bool Stretched = true;
    bool PictureShown = true;    // switched by hand; comes back with the next rebuild
    ColorValue Chart = kWhite;   // around the axes
    ColorValue Inside = kWhite;  // inside the axes
    ColorValue Title = kBlack;   // the title's letters
};

// The state that is drawn. It sends no signals: whoever changes it asks the drawing widget to take
// it over. One exists for the whole run, and everybody holds references to it.
class Chart {
  public:
    // Removes all curves and the title, and sets the axes back to 0..1 without titles and labels.
    // Background, readout, cursor style and active axis stay.
    void Clear();
    // Removes the curves alone: before the arrays that they show go away. Selection, zoom rectangle
    // and zoom history are about the curves and go with them.
    void RemoveCurves();
    // Draws in the order of adding: later curves lie over earlier ones. Pyramids must be set, and
    // their values must not change any more.
    void AddCurve(Curve curve) { curves_.push_back(std::move(curve)); }
    // Valid until curves are added or removed.
    std::span<const Curve> Curves() const { return curves_; }

    ChartAxisScale X;
    ChartAxisScale Y;   // left
    ChartAxisScale Y1;  // right
    XAxisLabels Labels;
    std::optional<TitleBlock> Title;
    ChartBackground Background;
    std::string Readout;  // the line about the selected point
    ChartCursor Cursor;
    bool LegendShown = false;
    // The axis whose curves are selected from and that is zoomed alone.
    ChartAxis ActiveAxis = ChartAxis::kLeft;
    std::optional<ChartPoint> Selected;
    std::optional<ZoomRectangle> Rectangle;
    // The axes as the plot was last built.
    ViewRecord Original;
    // Views that were left by zooms since the plot was built, the latest last.
    std::vector<ViewRecord> ZoomHistory;

    ViewRecord View() const { return {X.Range(), Y.Range(), Y1.Range()}; }
    // Sets all three axes, or none and false when one of the ranges cannot be shown. A range that
    // is shown or was built is never refused, even an inverted one; an axis that shows such a range
    // keeps it when it is asked for another one of that kind.
    bool ShowView(const ViewRecord& view);
    // Sets all three axes to a view that was shown before, without looking at it.
    void SetView(const ViewRecord& view);
    ChartAxisScale& ActiveScale() { return ActiveAxis == ChartAxis::kLeft ? Y : Y1; }
    // Where the selected reading lies on X and on its curve's axis; nothing without a selection.
    struct SelectedValues {
        double X = 0;
        double Y = 0;
    };
    std::optional<SelectedValues> Selection() const;

    // The value axis that the curve is drawn against.
    const ChartAxisScale& AxisOf(const Curve& curve) const {
        return curve.Axis == ChartAxis::kLeft ? Y : Y1;
    }

  private:
    std::vector<Curve> curves_;
};

// A temperature curve is one whose name contains "temp" in any letter case; the trimmed text in
// front of it is the period's name, the whole name for any other curve.
bool IsTemperatureCurve(const std::string& name);
std::string PeriodName(const std::string& name);

}  // namespace brask
