#include "app/ui/HandheldCommand.h"

#include <algorithm>
#include <iterator>

#include "app/AppTexts.h"
#include "data/RecoveryFolder.h"
#include "handheld/SyncSoftware.h"
#include "handheld/ui/frmAccessPDA.h"
#include "handheld/ui/frmNeedActiveSync.h"
#include "platform/qt/QtText.h"

namespace brask {

// One run, from the click to the closing of its window. The window is the main window's child, but
// goes with the run.
struct HandheldCommand::Running {
    HandheldAddress Address;
    std::unique_ptr<HandheldAccess> Handheld;
    RecoveryFolder Recovery;
    frmAccessPDA Window;
    CollectionRetrieval Retrieval;

    Running(HandheldCommand& command, HandheldAddress address)
        : Address(std::move(address)),
          Handheld(command.make_(Address)),
          Recovery(command.system_.Disk, command.system_.Time, command.session_.Directories),
          Window(command.system_.Words, &command.window_),
          Retrieval(command.PartsOf(*this), Address, command.session_.Options, command.collected_,
                    Window) {}
};

HandheldCommand::HandheldCommand(const System& system, const Session& session,
                                 const HandheldCommandParts& parts, QWidget& window)
    : system_(system), session_(session), parts_(parts), window_(window) {
    make_ = [this](const HandheldAddress& address) {
        return MakeHandheldAccess(address, system_.Disk);
    };
    parts_.Registry.Register("mnuReadPDAFile", [this] { mnuReadPDAFile_Click(); });
}

HandheldCommand::~HandheldCommand() = default;

HandheldAddress HandheldCommand::Address() const {
    if (overridden_) return *overridden_;
    return ParseHandheldAddress(session_.Options.Get("HandheldAddress"))
        .value_or(HandheldAddress());
}

RetrievalParts HandheldCommand::PartsOf(Running& run) const {
    return {*run.Handheld,       system_.Disk,         system_.User, system_.Words,
            system_.Information, session_.Directories, run.Recovery, session_.Log};
}

void HandheldCommand::mnuReadPDAFile_Click() {
    const HandheldAddress address = Address();
    if (address.Remote &&
        !ConfirmSyncSoftware(system_.Disk, session_.Options, system_.User, system_.Words)) {
        return;
    }
    parts_.Registry.SetBusy(true);
    collected_ = {};
    collected_.State = CollectState::kRunning;
    running_ = std::make_unique<Running>(*this, address);
    frmAccessPDA& shown = running_->Window;
    QObject::connect(&shown, &frmAccessPDA::ReadyToRun, &window_, [this] { Run(); });
    QObject::connect(&shown, &frmAccessPDA::CancelWanted, &window_,
                     [this] { running_->Retrieval.Cancel(); });
    // queued: the window that says so is deleted by it
    QObject::connect(
        &shown, &frmAccessPDA::Closed, &window_, [this] { Ended(); }, Qt::QueuedConnection);
    shown.show();
}

void HandheldCommand::Run() {
    parts_.Registry.Guard("mnuReadPDAFile", [this] { running_->Retrieval.Run(); });
    // until the window is gone, also after an error that the guard has caught
    parts_.Registry.SetBusy(true);
    // after an error the window stays: the grid tells what became of every file
    running_->Window.RunEnded(collected_.State == CollectState::kConnecting);
}

void HandheldCommand::Ended() {
    // closed before the run began, or read after an error
    if (collected_.State == CollectState::kRunning) collected_.State = CollectState::kCancelled;
    if (collected_.State == CollectState::kConnecting) collected_.State = CollectState::kFinished;
    const std::string note = NoteOf(running_->Retrieval.Rows());
    running_.reset();
    parts_.Registry.SetBusy(false);
    if (system_.User.Ended() || collected_.State != CollectState::kFinished) return;
    if (collected_.FirstCopied.empty()) return;
    collected_.ReceivedFile = collected_.FirstCopied;
    parts_.Registry.Guard("mnuReadPDAFile", [this] {
        parts_.Shown.Open(collected_.ReceivedFile, DataSource::kHandheld);
    });
    // after the load, which ends older notices: the window that said it in its grid is gone
    if (!note.empty()) system_.User.ShowNotice(note);
}

std::string HandheldCommand::NoteOf(const std::vector<RetrievalRow>& rows) const {
    const auto noted = [](const RetrievalRow& row) { return !row.Status.empty(); };
    const auto first = std::find_if(rows.begin(), rows.end(), noted);
    if (first == rows.end()) return {};
    const auto others = std::count_if(std::next(first), rows.end(), noted);
    if (others == 0) return first->Status;
    return system_.Words.Fill(app_texts::kMoreKept, {first->Status, std::to_string(others)});
}

void HandheldCommand::Serve(ProgramOptionsPage& page) {
    QObject::connect(&page, &ProgramOptionsPage::HandheldAddressChosen, &page,
                     [this, &page](const QString& text) { AddressChosen(page, text); });
    QObject::connect(&page, &ProgramOptionsPage::HandheldBrowseWanted, &page,
                     [this, &page] { cmdBrowseHandheld_Click(page); });
}

void HandheldCommand::AddressChosen(ProgramOptionsPage& page, const QString& text) {
    const std::string address = FromQt(text.trimmed());
    if (const auto parsed = ParseHandheldAddress(address)) {
        // a relative folder would be another one when the program starts elsewhere
        const bool folder = !parsed->Folder.empty();
        session_.Options.Save("HandheldAddress",
                              folder ? "dir:" + system_.Disk.Absolute(parsed->Folder) : address);
        // who chooses now does not mean what the program was started with
        overridden_.reset();
    } else {
        system_.User.ShowNotice(system_.Words.Fill(app_texts::kBadHandheld, {address}));
    }
    // as it is stored now
    page.ShowHandheldAddress(ToQt(session_.Options.Get("HandheldAddress")));
}

void HandheldCommand::cmdBrowseHandheld_Click(ProgramOptionsPage& page) {
    const auto folder =
        parts_.Choose.Folder(&window_, {ToQt(system_.Words, app_texts::kHandheldFolder), QString(),
                                        ToQt(Address().Folder), QString()});
    if (folder) AddressChosen(page, QStringLiteral("dir:") + *folder);
}

void HandheldCommand::WarnOfMissingSoftware() {
    if (SyncSoftwareInstalled(system_.Disk)) {
        // Once it is found its absence need not be borne silently any more, should it come back.
        session_.Options.Save("NeverWarn", "NO");
        return;
    }
    // only the library's link has a use for such software
    if (!Address().Remote || session_.Options.IsNotNo("NeverWarn")) return;
    frmNeedActiveSync(system_.Words, session_.Options, &window_).exec();
}

}  // namespace brask
