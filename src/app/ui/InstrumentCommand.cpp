#include "app/ui/InstrumentCommand.h"

#include "app/AppTexts.h"
#include "data/DataTexts.h"
#include "link/DownloadSession.h"
#include "link/LinkTexts.h"
#include "link/ui/frmDiscoverStatus.h"
#include "platform/qt/QtText.h"

namespace brask {
namespace {

constexpr const char* kCommand = "mnuReadDataFromTalvexK42";

}  // namespace

// One download, from the click to the closing of its window. The window is the main window's child,
// but goes with the download.
struct InstrumentCommand::Running {
    std::unique_ptr<InfraredSockets> Sockets;
    frmDiscoverStatus Window;
    DownloadSession Download;

    Running(std::unique_ptr<InfraredSockets> sockets, const LinkSystem& system,
            const LinkData& data, QWidget& parent)
        : Sockets(std::move(sockets)),
          Window(system.Words, system.Time, &parent),
          Download(*Sockets, system, data, Window, {}) {}
};

InstrumentCommand::InstrumentCommand(const System& system, const Session& session, Document& shown,
                                     Commands& registry, QWidget& window)
    : system_(system),
      session_(session),
      shown_(shown),
      registry_(registry),
      window_(window),
      recovery_(system.Disk, system.Time, session.Directories),
      expander_(system.Disk) {}

InstrumentCommand::~InstrumentCommand() = default;

void InstrumentCommand::UseLinks(LinkMaker links) {
    links_ = std::move(links);
    registry_.Register(kCommand, [this] { mnuReadDataFromTalvexK42_Click(); });
}

void InstrumentCommand::mnuReadDataFromTalvexK42_Click() {
    const std::string stored = session_.Options.Get("InstrumentAddress");
    const auto address = overridden_ ? overridden_ : ParseInstrumentAddress(stored);
    if (!address) {
        system_.User.ShowMessage({system_.Words.Find(data_texts::kProgramTitle),
                                  system_.Words.Fill(app_texts::kBadInstrument, {stored})});
        return;
    }
    // from here on no second download, and nothing else that would disturb this one, can start
    registry_.SetBusy(true);
    collected_ = {};
    collected_.State = CollectState::kRunning;
    warning_.clear();
    running_ = std::make_unique<Running>(
        links_(*address),
        LinkSystem{system_.User, system_.Words, system_.Disk, system_.Information, system_.Time},
        LinkData{collected_, session_.Directories, session_.Options, session_.Log, expander_,
                 recovery_},
        window_);
    frmDiscoverStatus& shown = running_->Window;
    QObject::connect(&shown, &frmDiscoverStatus::ReadyToRun, &window_, [this] { Run(); });
    QObject::connect(&shown, &frmDiscoverStatus::CancelWanted, &window_,
                     [this] { running_->Download.Cancel(); });
    // queued: the window that says so is deleted by it
    QObject::connect(
        &shown, &frmDiscoverStatus::Closed, &window_, [this] { Ended(); }, Qt::QueuedConnection);
    shown.show();
}

void InstrumentCommand::Run() {
    registry_.Guard(kCommand, [this] { warning_ = running_->Download.Run().Warning; });
    running_->Window.RunEnded();
}

void InstrumentCommand::Ended() {
    running_.reset();
    // closed before the run began, or broken off by what nobody expected
    if (collected_.State == CollectState::kRunning) collected_.State = CollectState::kCancelled;
    registry_.SetBusy(false);
    // the windows are closing: there is nobody left to show anything to
    if (system_.User.Ended() || collected_.ReceivedFile.empty() ||
        collected_.State != CollectState::kFinished) {
        return;
    }
    registry_.Guard(kCommand, [this] { OpenReceived(); });
}

void InstrumentCommand::OpenReceived() {
    const std::string file = collected_.ReceivedFile;
    shown_.Open(file, DataSource::kInstrument);
    if (system_.User.Ended()) return;
    // The load has wiped the notices of the download. That the file is there can be seen; that its
    // readings are not safe cannot.
    if (!warning_.empty()) {
        system_.User.ShowNotice(warning_);
    } else if (session_.Options.IsYes("NotifyUserOfNewFiles")) {
        system_.User.ShowNotice(system_.Words.Fill(link_texts::kDataFileSaved, {file}));
    }
    if (!registry_.HasReadings()) return;
    session_.Log.WriteLog(system_.Words.Find(app_texts::kLogViewIsBack));
    registry_.Run("ShowGraphTab");
}

void InstrumentCommand::Serve(ProgramOptionsPage& page) {
    QObject::connect(&page, &ProgramOptionsPage::FlagChosen, &page,
                     [this](const char* key, bool on) {
                         if (!session_.Options.Loading()) session_.Options.SaveFlag(key, on);
                     });
    QObject::connect(&page, &ProgramOptionsPage::InstrumentAddressChosen, &page,
                     [this, &page](const QString& text) { AddressChosen(page, text); });
}

void InstrumentCommand::AddressChosen(ProgramOptionsPage& page, const QString& text) {
    const std::string address = FromQt(text.trimmed());
    if (ParseInstrumentAddress(address)) {
        session_.Options.Save("InstrumentAddress", address);
    } else {
        system_.User.ShowNotice(system_.Words.Fill(app_texts::kBadInstrument, {address}));
    }
    // as it is stored now
    page.ShowInstrumentAddress(ToQt(session_.Options.Get("InstrumentAddress")));
}

}  // namespace brask
