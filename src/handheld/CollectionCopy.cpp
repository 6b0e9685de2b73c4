#include "handheld/CollectionCopy.h"

#include <optional>

#include "data/DataTexts.h"
#include "data/FileNames.h"
#include "data/Sha256.h"
#include "handheld/CollectionFolders.h"
#include "handheld/HandheldTexts.h"

namespace brask {

using namespace handheld_texts;
using enum ReadingOutcome::End;

CopyOutcome CollectionCopy::CopyToPc(const std::string& name) {
    CopyOutcome outcome;
    const Opened opened = Open(name, outcome);
    if (opened.File == nullptr) return outcome;
    const std::string directory = parts_.Directories.PocketPcDir();
    // it may have been removed since the program started
    static_cast<void>(parts_.Disk.MakeDirectoryChain(directory.substr(0, directory.size() - 1)));
    const std::string target = directory + SafeFileName(name);
    outcome.IsOneFile = parts_.Handheld.IsFileOfPc(opened.Path, target);
    if (outcome.IsOneFile) {
        outcome.Problem = parts_.Words.Fill(kSameFile, {target});
        parts_.Log.WriteLog(outcome.Problem);
    } else {
        Copy(opened, target, outcome);
    }
    if (!opened.File->Close().Ok()) {
        ShowMessage(parts_.Words.Find(kCloseFailed));
        if (outcome.Problem.empty()) outcome.Problem = parts_.Words.Find(kCloseFailed);
    }
    return outcome;
}

void CollectionCopy::Copy(const Opened& opened, const std::string& target, CopyOutcome& outcome) {
    const ReadingOutcome reading = CopyAndPlace(*opened.File, target, outcome);
    if (reading.How == kComplete) {
        outcome.Source = {opened.Path, reading.Length};
        outcome.Target = target;
    } else {
        outcome.Problem = Report(reading, target);
    }
}

CollectionCopy::Opened CollectionCopy::Open(const std::string& name, CopyOutcome& outcome) {
    std::string path;
    std::optional<Error> why;
    for (const char* const folder : kCollectionFolders) {
        auto file = parts_.Handheld.Open(folder + name);
        if (file.Ok()) return {folder + name, std::move(file.Value())};
        // that the other folder has no such file says less
        if (why && !NothingThere(*why)) continue;
        path = folder + name;
        why = file.Why();
    }
    outcome.Problem = parts_.TextOf(*why);
    ShowMessage(parts_.Words.Fill(kUnableToOpen, {path, outcome.Problem}));
    return {};
}

ReadingOutcome CollectionCopy::CopyAndPlace(HandheldFile& file, const std::string& target,
                                            CopyOutcome& outcome) {
    auto started = parts_.Disk.Replace(target);
    if (!started.Ok()) return {kNotTaken, started.Why()};
    Sha256 sum;
    ReadingOutcome reading = ReadThrough(
        file, parts_.Words,
        [&](std::string_view bytes) {
            sum.Add(bytes);
            return started.Value()->Write(bytes);
        },
        mayGoOn_);
    if (reading.How != kComplete) return reading;
    const auto kept = parts_.Recovery.KeepReplaced(target, sum.Hex());
    if (!kept.Ok()) return {kNotTaken, kept.Why()};
    if (!kept.Value().empty()) {
        outcome.Kept =
            parts_.Words.Fill(kReplacedKept, {BaseName(parts_.Disk, target), kept.Value()});
        parts_.Log.WriteLog(outcome.Kept);
    }
    const Status placed = started.Value()->Commit();
    return placed.Ok() ? reading : ReadingOutcome{kNotTaken, placed.Why()};
}

std::string CollectionCopy::Report(const ReadingOutcome& reading, const std::string& target) {
    std::string reason = parts_.TextOf(reading.Why);
    if (reading.How == kStopped) return reason;
    if (reading.How == kReadFailed) ShowMessage(parts_.Words.Fill(kReadError, {reason}));
    if (reading.How != kNotTaken) return reason;
    std::string text = parts_.Words.Fill(data_texts::kCannotWrite, {target, reason});
    parts_.User.ShowNotice(text);
    parts_.Log.WriteLog(text);
    return text;
}

void CollectionCopy::ShowMessage(const std::string& text) {
    parts_.User.ShowMessage({parts_.Words.Find(data_texts::kProgramTitle), text});
}

}  // namespace brask
