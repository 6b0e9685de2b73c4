#include "cli/VerifyCommand.h"

#include "cli/CliTexts.h"
#include "cli/InstrumentRun.h"
#include "cli/Shell.h"
#include "data/DataTexts.h"
#include "link/ReceivedFiling.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

void PrintDocument(Shell& shell, const FiledDownload& filed) {
    JsonWriter json(shell.Out);
    json.BeginObject();
    json.BoolMember("accepted", filed.Accepted);
    if (filed.File.empty()) {
        json.NullMember("file");
        json.NullMember("counted");
    } else {
        json.Member("file", filed.File);
        json.IntegerMember("counted", filed.Counted);
    }
    if (filed.Expected) {
        json.Member("expected", *filed.Expected);
    } else {
        json.NullMember("expected");
    }
    EndDocument(shell, json);
}

}  // namespace

ExitStatus RunVerify(Shell& shell, const CommandLine& line) {
    InstrumentRun run(shell, line);
    const std::string raw = shell.System.Disk().Absolute(line.Arguments()[0]);
    FiledDownload filed;
    const auto opened = shell.System.Disk().Open(raw);
    if (opened.Ok()) {
        const LinkData data = run.Data();
        if (const auto kept = data.Recovery.FindStream(raw)) {
            data.Expander.SetPreviousLine(kept->PreviousLine);
        }
        filed = ReceivedFiling(run.System(), data, [] { return true; }).VerifyAndFile(raw);
    } else {
        ShowFailure(shell, shell.Words.Fill(data_texts::kCannotRead, {raw, opened.Why().Reason}));
    }
    if (!filed.Accepted && shell.User.Messages().empty()) {
        shell.User.ShowNotice(shell.Words.Fill(cli_texts::kNotAccepted, {run.LogPath()}));
    }
    if (line.Has("json")) {
        PrintDocument(shell, filed);
    } else if (filed.Accepted) {
        const std::string counted = std::to_string(filed.Counted);
        shell.Out.Write(
            shell.Words.Fill(cli_texts::kLinesWritten, {PrintableText(filed.File), counted}) +
            "\n");
    }
    return filed.Accepted ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
