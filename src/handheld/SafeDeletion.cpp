#include "handheld/SafeDeletion.h"

#include <algorithm>
#include <optional>

#include "data/FileNames.h"
#include "handheld/CollectionFolders.h"
#include "handheld/HandheldTexts.h"

namespace brask {
namespace {

using namespace handheld_texts;

constexpr int kTries = 3;
constexpr int kMostNamesTried = 1000;

std::string NameIn(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

// "\VEK kept\Run.csv", "\VEK kept\Run (2).csv", ...
std::string KeptPath(const std::string& name, int number) {
    const std::string folder = std::string(kKeptFolder) + "\\";
    if (number == 1) return folder + name;
    const std::size_t stop = std::min(name.rfind('.'), name.size());
    return folder + name.substr(0, stop) + " (" + std::to_string(number) + ")" + name.substr(stop);
}

}  // namespace

Status SafeDeletion::DeleteCollection(const std::string& name, const CopiedFile& copied) {
    bool gone = false;
    std::optional<Error> why;
    std::optional<Error> copyStays;
    for (const char* const folder : kCollectionFolders) {
        const std::string path = folder + name;
        const Status data = DeleteOne(path, copied);
        gone = gone || data.Ok();
        if (!data.Ok() && path == copied.Path) copyStays = data.Why();
        // that the other folder has no such file says less than why this one could not be deleted
        if (!data.Ok() && (!why || NothingThere(*why))) why = data.Why();
        const std::string companion = CompanionOf(path);
        if (companion != path && DeleteOne(companion, copied).Ok()) break;
        // Without a companion the other folder follows, also for a file of the same name there that
        // is still to be copied. DeleteOne keeps its bytes.
    }
    // also when another file of that name is gone: this one is what the user was told of
    if (copyStays) return *copyStays;
    return gone ? Status() : Status(*why);
}

Status SafeDeletion::DeleteOne(const std::string& path, const CopiedFile& copied) {
    if (!mayGoOn_()) return Error{0, parts_.Words.Find(kRunStopped)};
    const std::string onPc = parts_.Directories.PocketPcDir() + SafeFileName(NameIn(path));
    if (parts_.Handheld.IsFileOfPc(path, onPc)) {
        return Error{0, parts_.Words.Fill(kSameFile, {onPc})};
    }
    if (path == copied.Path && StillAsCopied(copied)) return parts_.Handheld.Delete(path);
    for (int i = 0; i < kTries; ++i) {
        const auto kept = SaveOnce(path);
        if (kept.Ok()) {
            Remember(path, parts_.Words.Fill(kKeptOnPc, {NameIn(path), kept.Value()}));
            return parts_.Handheld.Delete(path);
        }
        // Nothing to keep, and nothing to delete. It is not asked for all the same: should the
        // answer be wrong, the file would be gone.
        if (NothingThere(kept.Why())) return kept.Why();
        parts_.Log.WriteLog(parts_.Words.Fill(kNotKept, {path, parts_.TextOf(kept.Why())}));
        if (!mayGoOn_()) return kept.Why();
    }
    return MoveAside(path);
}

bool SafeDeletion::StillAsCopied(const CopiedFile& copied) {
    const auto file = parts_.Handheld.Open(copied.Path);
    if (!file.Ok()) return false;
    const auto size = file.Value()->Size();
    return size.Ok() && size.Value() == copied.Length;
}

Result<std::string> SafeDeletion::SaveOnce(const std::string& path) {
    auto file = parts_.Handheld.Open(path);
    if (!file.Ok()) return file.Why();
    auto entry = parts_.Recovery.Begin(KeptKind::kHandheld, NameIn(path), path);
    // what is missing on the PC is not missing on the handheld
    if (!entry.Ok()) return Error{0, parts_.TextOf(entry.Why())};
    const ReadingOutcome reading = ReadThrough(
        *file.Value(), parts_.Words,
        [&](std::string_view bytes) { return entry.Value()->Write(bytes); }, mayGoOn_);
    if (reading.How != ReadingOutcome::End::kComplete) {
        return Error{0, parts_.TextOf(reading.Why)};
    }
    auto kept = entry.Value()->Keep();
    if (!kept.Ok()) return Error{0, parts_.TextOf(kept.Why())};
    return kept;
}

Status SafeDeletion::MoveAside(const std::string& path) {
    // it may be there already; whether it is shows when the file is moved
    static_cast<void>(parts_.Handheld.MakeFolder(kKeptFolder));
    Error why;
    for (int number = 1; number <= kMostNamesTried; ++number) {
        const std::string target = KeptPath(NameIn(path), number);
        const Status moved = parts_.Handheld.Move(path, target);
        if (moved.Ok()) {
            Remember(path, parts_.Words.Fill(kKeptOnHandheld, {NameIn(path), target}));
            return {};
        }
        why = moved.Why();
        if (!NameTaken(why)) break;
    }
    return why;
}

void SafeDeletion::Remember(const std::string& path, const std::string& text) {
    notes_.push_back({path, text});
    parts_.Log.WriteLog(text);
}

std::vector<std::string> SafeDeletion::NotesOf(const std::string& name) const {
    std::vector<std::string> texts;
    for (const Note& note : notes_) {
        for (const char* const folder : kCollectionFolders) {
            const std::string path = folder + name;
            if (note.Path == path || note.Path == CompanionOf(path)) texts.push_back(note.Text);
        }
    }
    return texts;
}

}  // namespace brask
