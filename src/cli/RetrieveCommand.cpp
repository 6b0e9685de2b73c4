#include "cli/RetrieveCommand.h"

#include <array>

#include "cli/CliTexts.h"
#include "cli/CommandSession.h"
#include "cli/Shell.h"
#include "handheld/CollectionRetrieval.h"
#include "handheld/SyncSoftware.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

constexpr auto kOptions = std::to_array<OptionRow>({
    {"handheld", OptionKind::kText, "ADDRESS",
     TextRow("cli", "the handheld: rapi or dir:PATH, instead of the stored one")},
});

struct Retrieved {
    RetrievalOutcome Outcome = RetrievalOutcome::kNotConnected;
    std::vector<RetrievalRow> Rows;
    std::string Opened;
};

// Keeps the last line that a window would show.
struct LastLine : RetrievalView {
    std::string Text;

    void ShowStatus(const std::string& text) override { Text = text; }
};

Retrieved Retrieve(Shell& shell, const CommandLine& line, const HandheldAddress& address,
                   CommandSession& session) {
    Files& disk = shell.System.Disk();
    // asked for before anything is touched, and only where such software has a part in it
    if (address.Remote && !ConfirmSyncSoftware(disk, session.Options(), shell.User, shell.Words)) {
        return {};
    }
    DataDirectories directories(disk, shell.User, shell.Words);
    if (const auto root = line.Value("root")) directories.OverrideBase(disk.Absolute(*root));
    const auto version = shell.System.Information().Version();
    directories.ResolveDataDirectories(
        session.Options(), version ? ClassifyWindows(*version) : WindowsKind::kNotClassified);
    RecoveryFolder recovery(disk, shell.System.Time(), directories);
    DiagnosticLog log(disk, shell.System.Time());
    const auto handheld = MakeHandheldAccess(address, disk);
    CollectSession collected;
    LastLine view;
    CollectionRetrieval retrieval({*handheld, disk, shell.User, shell.Words,
                                   shell.System.Information(), directories, recovery, log},
                                  address, session.Options(), collected, view);
    Retrieved retrieved;
    retrieved.Outcome = retrieval.Run();
    // what to do about it
    if (retrieved.Outcome == RetrievalOutcome::kNotConnected && !view.Text.empty()) {
        shell.User.ShowNotice(view.Text);
    }
    retrieved.Rows = retrieval.Rows();
    retrieved.Opened = collected.FirstCopied;
    return retrieved;
}

void WriteDocument(Shell& shell, const Retrieved& retrieved) {
    JsonWriter json(shell.Out);
    json.BeginObject();
    json.Key("files");
    json.BeginArray();
    for (const RetrievalRow& row : retrieved.Rows) {
        json.BeginObject();
        json.Member("name", row.Name);
        json.BoolMember("downloaded", row.Downloaded);
        json.BoolMember("deleted", row.Deleted);
        json.Member("status", row.Status);
        json.EndObject();
    }
    json.EndArray();
    if (retrieved.Opened.empty()) {
        json.NullMember("opened");
    } else {
        json.Member("opened", retrieved.Opened);
    }
    EndDocument(shell, json);
}

void WriteLines(Shell& shell, const Retrieved& retrieved) {
    const auto yesNo = [&shell](bool yes) {
        return shell.Words.Find(yes ? cli_texts::kYes : cli_texts::kNo);
    };
    for (const RetrievalRow& row : retrieved.Rows) {
        std::string text = shell.Words.Fill(cli_texts::kRetrieved,
                                            {row.Name, yesNo(row.Downloaded), yesNo(row.Deleted)});
        if (!row.Status.empty()) text += "; " + row.Status;
        shell.Out.Write(PrintableText(text) + "\n");
    }
}

}  // namespace

std::span<const OptionRow> RetrieveOptions() { return kOptions; }

ExitStatus RunRetrieve(Shell& shell, const CommandLine& line) {
    const auto option = line.Value("handheld");
    if (option && !ParseHandheldAddress(*option)) {
        return WrongUsage(shell.Words.Fill(cli_texts::kBadHandheld, {*option}));
    }
    CommandSession session(shell, line);
    const std::string stored = session.Options().Get("HandheldAddress");
    const auto address = ParseHandheldAddress(option.value_or(stored));
    Retrieved retrieved;
    if (address) {
        // Ctrl+C or a shutdown must not leave half a copy, or a deletion that nobody heard of.
        shell.User.EndOn(shell.System.WatchStopSignal());
        retrieved = Retrieve(shell, line, *address, session);
        shell.User.EndOn(nullptr);
    } else {
        ShowFailure(shell, shell.Words.Fill(cli_texts::kBadStoredHandheld, {stored}));
    }
    if (line.Has("json")) {
        WriteDocument(shell, retrieved);
    } else {
        WriteLines(shell, retrieved);
    }
    const bool done = retrieved.Outcome == RetrievalOutcome::kDone ||
                      retrieved.Outcome == RetrievalOutcome::kNotDeleted;
    return done ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
