#include "cli/ui/DrawCommand.h"

#include <QApplication>

#include "cli/CliTexts.h"
#include "cli/CommandSession.h"
#include "cli/PlotCommand.h"
#include "cli/PlotRequest.h"
#include "cli/Shell.h"
#include "data/DataTexts.h"
#include "plot/PlotBuilder.h"
#include "plot/ui/DynaPlot.h"
#include "plot/ui/PlotPicture.h"

namespace brask {
namespace {

// Qt talks about the desktop that it misses; what a user is to know comes from ourselves.
void DropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

Status Draw(const Chart& chart, const PlotRequest& request, NativeSystem& system) {
    // The platform that draws into memory needs no display; a user's own choice stands.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(DropMessage);
    // options are ours: Qt must not pick any out of the command line
    int count = 1;
    std::string name = "brask-plot";
    char* arguments[] = {name.data(), nullptr};
    // Made only now: what fails before need not wait for Qt to start.
    const QApplication application(count, static_cast<char**>(arguments));
    DynaPlot plot(chart, system.Locale());
    plot.ShowChart();
    return WritePicture(plot.Picture({request.Width, request.Height}), request.Picture,
                        system.Disk());
}

}  // namespace

ExitStatus RunDraw(Shell& shell, const CommandLine& line) {
    const auto request = ReadPlotRequest(line, shell.Words);
    if (!request.Ok()) return WrongUsage(request.Why().Reason);
    CommandSession session(shell, line);
    PlotOptions options = ReadPlotOptions(session.Options(), session.Unit());
    OverrideLayout(line, options);
    const auto period =
        ReadPeriod(request.Value(), options.Layout, session.DateOrder(), shell.Words);
    // Only here, not with the other options: the layout may come from the settings.
    if (!period.Ok()) return WrongUsage(period.Why().Reason);

    std::optional<PlotRequest> written;
    if (session.Load(line.Arguments()[0])) {
        Chart chart;
        PlotBuilder(chart, session.Data(), shell.System.Locale(), shell.Words).Rebuild(options);
        // After the build, which sets the axes to all readings.
        if (const auto& range = period.Value()) chart.X.SetRange(range->Minimum, range->Maximum);
        const Status drawn = Draw(chart, request.Value(), shell.System);
        if (drawn.Ok()) {
            written = request.Value();
        } else {
            ShowFailure(shell, shell.Words.Fill(data_texts::kCannotWrite,
                                                {request.Value().Picture, drawn.Why().Reason}));
        }
    }
    if (line.Has("json")) {
        WritePlotDocument(shell, written);
    } else if (written) {
        shell.Out.Write(shell.Words.Fill(cli_texts::kPictureWritten,
                                         {written->Picture, std::to_string(written->Width),
                                          std::to_string(written->Height)}) +
                        "\n");
    }
    return written ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
