#include "cli/DownloadCommand.h"

#include <algorithm>
#include <array>

#include "cli/CliTexts.h"
#include "cli/InstrumentRun.h"
#include "cli/Shell.h"
#include "link/DownloadSession.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

using namespace cli_texts;

constexpr auto kOptions = std::to_array<OptionRow>({
    {"instrument", OptionKind::kText, "ADDRESS",
     TextRow("cli", "irda or tcp:HOST:PORT, instead of the stored link")},
    {"clear", OptionKind::kSwitch, "",
     TextRow("cli", "clear the instrument after a good download")},
    {"no-clear", OptionKind::kSwitch, "", TextRow("cli", "do not clear the instrument")},
    {"timeout", OptionKind::kCount, "SECONDS",
     TextRow("cli", "give up when no connection stands by then")},
});

// Progress on a terminal: what to wait for, then the bytes that came.
class ConsoleDownloadView final : public DownloadView {
  public:
    ConsoleDownloadView(Shell& shell, bool progress) : shell_(shell), progress_(progress) {}

    void OnDownload(const DownloadDisplay& display) override {
        if (!progress_) return;
        if (display.Step != step_) {
            if (step_ == DownloadStep::kReceiving) shell_.User.EndProgress();
            step_ = display.Step;
            if (step_ == DownloadStep::kConnecting) ShowPrompt(display);
            if (step_ == DownloadStep::kReceiving) {
                shell_.User.BeginProgress(ProgressMode::kReadingFile);
            }
        }
        if (step_ == DownloadStep::kReceiving) shell_.User.SetProgressCount(display.Bytes);
    }

  private:
    void ShowPrompt(const DownloadDisplay& display) {
        const auto& labels = display.Labels;
        shell_.User.ShowNotice(labels[0] + " " + labels[1] + ": " + labels[4] + " " + labels[5]);
    }

    Shell& shell_;
    bool progress_;
    DownloadStep step_ = DownloadStep::kStarting;
};

DownloadOptions OptionsOf(const CommandLine& line) {
    DownloadOptions options;
    if (line.Has("clear")) options.Clear = true;
    if (line.Has("no-clear")) options.Clear = false;
    if (const auto seconds = line.Count("timeout")) {
        // a century is for ever
        constexpr std::int64_t kMost = 3'155'760'000;
        options.ConnectTimeout = std::min(*seconds, kMost) * 1000;
    }
    return options;
}

void Print(Shell& shell, const CommandLine& line, const DownloadReport& report) {
    if (line.Has("json")) {
        JsonWriter json(shell.Out);
        json.BeginObject();
        json.BoolMember("accepted", report.Accepted);
        for (const auto& [key, path] :
             {std::pair("file", &report.File), std::pair("raw_file", &report.RawFile)}) {
            path->empty() ? json.NullMember(key) : json.Member(key, *path);
        }
        json.IntegerMember("bytes", report.Bytes);
        json.BoolMember("cleared", report.Cleared);
        EndDocument(shell, json);
    } else if (report.Accepted) {
        const TextRow& row = report.Cleared ? kDownloadedAndCleared : kDownloaded;
        shell.Out.Write(
            shell.Words.Fill(row, {PrintableText(report.File), std::to_string(report.Bytes)}) +
            "\n");
    }
}

}  // namespace

std::span<const OptionRow> DownloadOptionRows() { return kOptions; }

ExitStatus RunDownload(Shell& shell, const CommandLine& line) {
    // Of the two neither is the safe guess.
    if (line.Has("clear") && line.Has("no-clear")) {
        return WrongUsage(shell.Words.Find(kClearOrNot));
    }
    const auto given = line.Value("instrument");
    if (given && !ParseInstrumentAddress(*given)) {
        return WrongUsage(shell.Words.Fill(kNotALink, {"--instrument", *given}));
    }
    // From here on things are made on disk; what is wrong with the words has been said.
    InstrumentRun run(shell, line);
    const std::string address = given.value_or(run.Options().Get("InstrumentAddress"));
    const auto parsed = ParseInstrumentAddress(address);
    DownloadReport report;
    if (parsed) {
        const auto sockets = shell.System.LinkTo(*parsed);
        const bool progress =
            !line.Has("quiet") && shell.System.OtherPrograms().ErrorOutputIsTerminal();
        ConsoleDownloadView view(shell, progress);
        // What the instrument has sent is not lost by Ctrl+C or a shutdown.
        shell.User.EndOn(shell.System.WatchStopSignal());
        report = DownloadSession(*sockets, run.System(), run.Data(), view, OptionsOf(line)).Run();
        shell.User.EndOn(nullptr);
        if (report.GivenUp) {
            ShowFailure(shell, shell.Words.Fill(kNoConnection, {address, *line.Value("timeout")}));
        }
    } else {
        ShowFailure(shell, shell.Words.Fill(kNotALink, {"InstrumentAddress", address}));
    }
    // In the window the closed dialog says enough; a script's user would see nothing at all.
    if (!report.Accepted && shell.User.Messages().empty()) {
        shell.User.ShowNotice(shell.Words.Fill(kNotAccepted, {run.LogPath()}));
    }
    Print(shell, line, report);
    // A script that reads 0 takes the instrument for left in good order.
    const bool done = report.Accepted && !shell.User.Ended();
    return done ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
