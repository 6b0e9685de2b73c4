#include "cli/CurvesCommand.h"

#include <algorithm>
#include <string>

#include "cli/CommandSession.h"
#include "cli/PlotRequest.h"
#include "cli/Shell.h"
#include "data/DateTime.h"
#include "data/NumberText.h"
#include "platform/Utf8.h"
#include "plot/PlotBuilder.h"

namespace brask {
namespace {

std::string_view AxisName(const Curve& curve) {
    return curve.Axis == ChartAxis::kLeft ? "left" : "right";
}

std::string_view LineName(const Curve& curve) {
    return curve.Line == LineStyle::kSolid ? "solid" : "dotted";
}

void WriteRange(JsonWriter& json, std::string_view key, const AxisRange& range) {
    json.Key(key);
    json.BeginObject();
    json.Member("minimum", range.Minimum);
    json.Member("maximum", range.Maximum);
    json.EndObject();
}

void WriteCurve(JsonWriter& json, const Curve& curve) {
    json.BeginObject();
    json.Member("name", curve.Name);
    json.Member("axis", AxisName(curve));
    json.Member("color", ColorToRgbText(curve.Color));
    json.Member("line", LineName(curve));
    // the chart's own number: 0, 2 or 8
    json.IntegerMember("style", static_cast<int>(curve.Style));
    json.Member("x", curve.X);
    json.Member("y", curve.Y);
    json.EndObject();
}

void WriteDocument(Shell& shell, const Chart& chart) {
    JsonWriter json(shell.Out);
    json.BeginObject();
    // An empty plot has no title.
    if (chart.Title) {
        json.Member("title", chart.Title->Title);
        json.IntegerMember("title_size", chart.Title->FontSize);
        json.Member("caption", chart.Title->Caption);
    } else {
        json.NullMember("title");
        json.NullMember("title_size");
        json.NullMember("caption");
    }
    // The ranges are the chart's true ones, also where a drawing has to widen one.
    WriteRange(json, "x", chart.X.Range());
    WriteRange(json, "y", chart.Y.Range());
    WriteRange(json, "y1", chart.Y1.Range());
    json.Key("curves");
    json.BeginArray();
    for (const Curve& curve : chart.Curves()) WriteCurve(json, curve);
    json.EndArray();
    EndDocument(shell, json);
}

std::string NumbersText(const AxisRange& range) {
    return FormatNumber(range.Minimum) + " to " + FormatNumber(range.Maximum);
}

void WriteLines(OutputBuffer& out, const Chart& chart) {
    const auto line = [&out](std::string_view label, const std::string& value) {
        std::string text = PrintableText(value);
        // a title may have line ends of its own; here one line holds one thing
        std::replace(text.begin(), text.end(), '\n', ' ');
        out.Write(std::string(label) + text + "\n");
    };
    // Only an axis of dates holds serials; in overlapping layouts X counts from the start of the
    // day or week.
    const bool dates = !chart.Labels.DateFormat.empty();
    const AxisRange& x = chart.X.Range();
    line("Title:    ",
         chart.Title->Title + " (" + std::to_string(chart.Title->FontSize) + " points)");
    line("Caption:  ", chart.Title->Caption);
    line("X:        ", dates ? FormatReadingTime(x.Minimum) + " to " + FormatReadingTime(x.Maximum)
                             : NumbersText(x));
    line("Y left:   ", NumbersText(chart.Y.Range()));
    line("Y right:  ", NumbersText(chart.Y1.Range()));
    for (const Curve& curve : chart.Curves()) {
        line("Curve:    ", curve.Name + ", " + std::string(AxisName(curve)) + " axis, " +
                               ColorToRgbText(curve.Color) + ", " + std::string(LineName(curve)) +
                               ", style " + std::to_string(static_cast<int>(curve.Style)) + ", " +
                               std::to_string(curve.X.size()) + " points");
    }
}

}  // namespace

ExitStatus RunCurves(Shell& shell, const CommandLine& line) {
    CommandSession session(shell, line);
    // The plot is built in any case: a document shows the empty one, too.
    const bool read = session.Load(line.Arguments()[0]);
    PlotOptions options = ReadPlotOptions(session.Options(), session.Unit());
    OverrideLayout(line, options);
    Chart chart;
    PlotBuilder(chart, session.Data(), shell.System.Locale(), shell.Words).Rebuild(options);
    if (line.Has("json")) {
        WriteDocument(shell, chart);
    } else if (read) {
        WriteLines(shell.Out, chart);
    }
    return read ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
