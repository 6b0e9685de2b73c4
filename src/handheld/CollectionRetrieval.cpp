#include "handheld/CollectionRetrieval.h"

#include "data/DataTexts.h"
#include "handheld/CollectionFolders.h"
#include "handheld/HandheldTexts.h"
#include "platform/AsciiText.h"
#include "platform/ProgramError.h"

namespace brask {
namespace {

using namespace handheld_texts;

// In one folder, names without a text among them: a listing that does not end is no handheld's.
constexpr std::size_t kMostFiles = 10000;

}  // namespace

CollectionRetrieval::CollectionRetrieval(const RetrievalParts& parts,
                                         const HandheldAddress& address, const Settings& settings,
                                         CollectSession& session, RetrievalView& view)
    : parts_(parts),
      address_(address),
      settings_(settings),
      session_(session),
      view_(view),
      copy_(parts_, [this] { return MayGoOn(); }),
      deletion_(parts_, [this] { return MayGoOn(); }) {}

bool CollectionRetrieval::MayGoOn() const {
    parts_.User.LetEventsRun();
    return session_.State == CollectState::kConnecting && !parts_.User.Ended();
}

RetrievalOutcome CollectionRetrieval::Run() {
    session_.State = CollectState::kConnecting;
    session_.ReceivedFile.clear();
    session_.FirstCopied.clear();
    view_.ShowWaiting(true);
    const bool connected = Connect();
    view_.ShowWaiting(false);
    if (!connected) {
        session_.State = CollectState::kCancelled;
        return RetrievalOutcome::kNotConnected;
    }
    FindFiles();
    for (std::size_t row = 0; row < rows_.size() && MayGoOn(); ++row) Retrieve(row);
    return Finish();
}

bool CollectionRetrieval::Connect() {
    if (const Status begun = parts_.Handheld.Initialise(); !begun.Ok()) {
        ReportTypeMismatch(begun.Why());
        return false;
    }
    while (MayGoOn() && parts_.Handheld.LinkHasComeUp()) {
    }
    if (!MayGoOn()) return false;
    if (!parts_.Handheld.Connected()) {
        ReportMissing();
        return false;
    }
    view_.ShowStatus(parts_.Words.Find(kConnected));
    return true;
}

void CollectionRetrieval::ReportTypeMismatch(const Error& error) {
    const Texts& texts = parts_.Words;
    // users know this end of the program by its report; the log says what lies behind it
    parts_.Log.WriteLog(texts.Fill(kInitialiseFailed, {parts_.TextOf(error)}));
    ShowProgramError(parts_.User, texts,
                     {texts.Find(kOperation), texts.Find(kTypeMismatch), "", false});
    parts_.User.EndProgram();
}

void CollectionRetrieval::ReportMissing() {
    const Texts& texts = parts_.Words;
    if (address_.Remote) {
        view_.ShowStatus(texts.Find(kRemoteMissing));
    } else if (address_.Folder.empty()) {
        view_.ShowStatus(texts.Find(kNoFolderChosen));
    } else {
        view_.ShowStatus(texts.Fill(kFolderMissing, {address_.Folder}));
    }
    ShowMessage(texts.Find(kUnableToConnect));
}

void CollectionRetrieval::FindFiles() {
    view_.ShowStatus(parts_.Words.Find(kFinding));
    for (const char* const folder : kCollectionFolders) ListFolder(folder);
    view_.ShowRows(rows_);
    view_.ShowStatus(parts_.Words.Fill(kFound, {std::to_string(rows_.size())}));
    if (rows_.empty() && MayGoOn()) ShowMessage(parts_.Words.Find(kNoFiles));
}

void CollectionRetrieval::ListFolder(const std::string& folder) {
    auto found = parts_.Handheld.FindFirst(folder + "*.csv");
    for (std::size_t answers = 0; found.Ok() && answers < kMostFiles; ++answers) {
        if (!found.Value().empty()) rows_.push_back({found.Value(), false, false, ""});
        if (!MayGoOn()) return;
        found = parts_.Handheld.FindNext();
    }
    if (!found.Ok() && (NothingThere(found.Why()) || ListingAtEnd(found.Why()))) return;
    const std::string reason = found.Ok()
                                   ? parts_.Words.Fill(kTooMany, {std::to_string(kMostFiles)})
                                   : parts_.TextOf(found.Why());
    if (!found.Ok() && ContainsIgnoringCase(reason, "no more files")) return;
    listingError_ = parts_.Words.Fill(kCannotList, {folder, reason});
    parts_.User.ShowNotice(listingError_);
    parts_.Log.WriteLog(listingError_);
}

void CollectionRetrieval::Retrieve(std::size_t number) {
    RetrievalRow& row = rows_[number];
    view_.ShowRow(number, row);
    view_.ShowStatus(parts_.Words.Fill(kCopying, {row.Name}));
    const CopyOutcome copy = copy_.CopyToPc(row.Name);
    Copied(copy);
    row.Status = copy.Problem;
    const auto add = [&row](const std::string& text) {
        row.Status += (row.Status.empty() ? "" : "; ") + text;
    };
    if (!copy.Kept.empty()) add(copy.Kept);
    row.Downloaded = !copy.Target.empty();
    if (copy.IsOneFile || !MayGoOn()) {
        view_.ShowRow(number, row);
        return;
    }
    row.Downloaded = true;
    view_.ShowRow(number, row);

    // whatever became of the copy: users know the handheld to be empty afterwards
    view_.ShowStatus(parts_.Words.Fill(kDeleting, {row.Name}));
    const Status deleted = deletion_.DeleteCollection(row.Name, copy.Source);
    row.Deleted = deleted.Ok();
    otherFailed_ = otherFailed_ || !deleted.Ok();
    // a file that could not even be opened has the same reason twice
    if (!deleted.Ok() && parts_.TextOf(deleted.Why()) != copy.Problem) {
        add(parts_.TextOf(deleted.Why()));
    }
    for (const std::string& note : deletion_.NotesOf(row.Name)) add(note);
    view_.ShowRow(number, row);
}

void CollectionRetrieval::Copied(const CopyOutcome& copy) {
    copyFailed_ = copyFailed_ || copy.Target.empty();
    otherFailed_ = otherFailed_ || !copy.Problem.empty();
    if (copy.Target.empty()) return;
    session_.ReceivedFile = copy.Target;
    if (session_.FirstCopied.empty()) session_.FirstCopied = copy.Target;
    if (!settings_.IsYes("NotifyUserOfNewFiles")) return;
    parts_.User.ShowNotice(parts_.Words.Fill(kDataFileSaved, {copy.Target}));
}

RetrievalOutcome CollectionRetrieval::Finish() {
    if (!MayGoOn()) {
        session_.State = CollectState::kCancelled;
        return RetrievalOutcome::kStopped;
    }
    const bool failed = copyFailed_ || !listingError_.empty();
    if (!failed && !otherFailed_) {
        session_.State = CollectState::kFinished;
        return RetrievalOutcome::kDone;
    }
    view_.ShowStatus(listingError_.empty() ? parts_.Words.Find(kNotAllWell) : listingError_);
    return failed ? RetrievalOutcome::kFailed : RetrievalOutcome::kNotDeleted;
}

void CollectionRetrieval::ShowMessage(const std::string& text) {
    parts_.User.ShowMessage({parts_.Words.Find(data_texts::kProgramTitle), text});
}

}  // namespace brask
