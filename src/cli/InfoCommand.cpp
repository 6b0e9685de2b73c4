#include "cli/InfoCommand.h"

#include <algorithm>
#include <optional>

#include "cli/CommandSession.h"
#include "cli/Shell.h"
#include "data/DateTime.h"
#include "data/NumberText.h"
#include "data/Windows1252.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

struct Extremes {
    double Minimum = 0;
    double Maximum = 0;
};

std::optional<Extremes> ExtremesOf(std::span<const double> values) {
    // no readings have no extremes: null in a document
    if (values.empty()) return std::nullopt;
    const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
    return Extremes{*least, *greatest};
}

void WriteExtremes(JsonWriter& json, const std::string& name,
                   const std::optional<Extremes>& extremes) {
    if (!extremes) {
        json.NullMember(name + "_min");
        json.NullMember(name + "_max");
        return;
    }
    json.Member(name + "_min", extremes->Minimum);
    json.Member(name + "_max", extremes->Maximum);
}

void WriteDocument(Shell& shell, const CommandSession& session, const std::string& file) {
    const DataSet& data = session.Data();
    JsonWriter json(shell.Out);
    json.BeginObject();
    // As typed, so that a script finds its own name again.
    json.Member("file", file);
    // Header texts are bytes of the file; a document has to be UTF-8.
    json.Member("instrument", Windows1252ToUtf8(data.InstrumentName));
    json.Member("serial_number", Windows1252ToUtf8(data.InstrumentSerialNumber));
    json.Member("date", Windows1252ToUtf8(data.InstrumentDate));
    json.Member("gas", Windows1252ToUtf8(data.InstrumentGas));
    json.IntegerMember("readings", data.ReadingCount);
    if (data.ReadingCount > 0) {
        json.Member("first", FormatReadingTime(data.Times().front()));
        json.Member("last", FormatReadingTime(data.Times().back()));
    } else {
        json.NullMember("first");
        json.NullMember("last");
    }
    WriteExtremes(json, "gas", ExtremesOf(data.Gas()));
    WriteExtremes(json, "temperature", ExtremesOf(data.Temperatures()));
    json.Member("temperature_unit", session.Unit().Label());
    json.IntegerMember("rejected_lines", session.RejectedLines());
    EndDocument(shell, json);
}

std::string RangeText(std::span<const double> values, const std::string& unit) {
    // never empty here: lines are printed only after a load with readings
    const auto extremes = ExtremesOf(values).value_or(Extremes());
    return FormatNumber(extremes.Minimum) + " to " + FormatNumber(extremes.Maximum) + " " + unit;
}

void WriteLines(OutputBuffer& out, const CommandSession& session, const std::string& file) {
    const DataSet& data = session.Data();
    const auto line = [&out](std::string_view label, const std::string& value) {
        constexpr std::size_t kLabelWidth = 16;
        out.Write(label);
        out.Write(std::string(kLabelWidth - label.size(), ' '));
        // a header may hold anything, control characters of the terminal included
        std::string text = PrintableText(value);
        std::replace(text.begin(), text.end(), '\n', ' ');
        out.Write(text + "\n");
    };
    line("File:", file);
    line("Instrument:", Windows1252ToUtf8(data.InstrumentName));
    line("Serial number:", Windows1252ToUtf8(data.InstrumentSerialNumber));
    line("Date:", Windows1252ToUtf8(data.InstrumentDate));
    line("Gas:", Windows1252ToUtf8(data.InstrumentGas));
    line("Readings:", std::to_string(data.ReadingCount));
    line("First:", FormatReadingTime(data.Times().front()));
    line("Last:", FormatReadingTime(data.Times().back()));
    line("Gas range:", RangeText(data.Gas(), "ppm"));
    line("Temperatures:", RangeText(data.Temperatures(), session.Unit().Label()));
    line("Rejected lines:", std::to_string(session.RejectedLines()));
}

}  // namespace

ExitStatus RunInfo(Shell& shell, const CommandLine& line) {
    CommandSession session(shell, line);
    const std::string& file = line.Arguments()[0];
    const bool read = session.Load(file);
    // A failed load has its document, too, with nulls; without --json the message says it all.
    if (line.Has("json")) {
        WriteDocument(shell, session, file);
    } else if (read) {
        WriteLines(shell.Out, session, file);
    }
    return read ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
