#include "cli/ExpandCommand.h"

#include <array>

#include "cli/CliTexts.h"
#include "cli/Shell.h"
#include "data/ReceivedFileExpander.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

constexpr auto kOptions = std::to_array<OptionRow>({
    {"o", OptionKind::kText, "OUT", TextRow("cli", "the data file to write; it is replaced")},
});

}  // namespace

std::span<const OptionRow> ExpandOptions() { return kOptions; }

ExitStatus RunExpand(Shell& shell, const CommandLine& line) {
    const auto out = line.Value("o");
    // Before anything is read, so that a mistyped call has no effect.
    if (!out) return WrongUsage(OptionMissing(shell, *line.Command(), "o"));
    const std::string& raw = line.Arguments()[0];
    const auto lines = ReceivedFileExpander(shell.System.Disk()).ExpandReceivedFile(raw, *out);
    if (!lines.Ok()) {
        ShowFailure(shell,
                    shell.Words.Fill(cli_texts::kCannotExpand, {raw, *out, lines.Why().Reason}));
    }
    if (line.Has("json")) {
        JsonWriter json(shell.Out);
        json.BeginObject();
        if (lines.Ok()) {
            json.Member("file", *out);
            json.IntegerMember("lines", lines.Value());
        } else {
            json.NullMember("file");
            json.NullMember("lines");
        }
        EndDocument(shell, json);
    } else if (lines.Ok()) {
        shell.Out.Write(shell.Words.Fill(cli_texts::kLinesWritten,
                                         {PrintableText(*out), std::to_string(lines.Value())}) +
                        "\n");
    }
    return lines.Ok() ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
