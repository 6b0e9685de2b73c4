#include "cli/PlotCommand.h"

#include "cli/CliTexts.h"
#include "cli/Shell.h"

namespace brask {
namespace {

constexpr const char* kDrawingProgram = "brask-plot";

std::string DrawingProgram(NativeSystem& system) {
    const std::string directory = system.Information().ProgramDirectory();
    // Beside this program in a build, in libexec when installed, since nobody starts it by hand.
    for (const char* place : {"/", "/../libexec/brasklite/"}) {
        std::string path = directory + place + system.OtherPrograms().FileName(kDrawingProgram);
        if (system.Disk().Exists(path)) return path;
    }
    return kDrawingProgram;
}

}  // namespace

ExitStatus RunPlot(Shell& shell, const CommandLine& line) {
    // Wrong usage is found here, before another program is started, and reads the same from both.
    const auto request = ReadPlotRequest(line, shell.Words);
    if (!request.Ok()) return WrongUsage(request.Why().Reason);
    const Error error =
        // All words go along as they came: brask-plot reads them by the same tables.
        shell.System.OtherPrograms().Become(DrawingProgram(shell.System), shell.Arguments);
    ShowFailure(shell, shell.Words.Fill(cli_texts::kCannotStart, {kDrawingProgram, error.Reason}));
    if (line.Has("json")) WritePlotDocument(shell, std::nullopt);
    return ExitStatus::kFailed;
}

void WritePlotDocument(Shell& shell, const std::optional<PlotRequest>& written) {
    JsonWriter json(shell.Out);
    json.BeginObject();
    if (written) {
        json.Member("picture", written->Picture);
        json.IntegerMember("width", written->Width);
        json.IntegerMember("height", written->Height);
    } else {
        json.NullMember("picture");
        json.NullMember("width");
        json.NullMember("height");
    }
    EndDocument(shell, json);
}

}  // namespace brask
