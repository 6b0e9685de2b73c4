#include "link/DownloadSession.h"

#include <algorithm>
#include <utility>

#include "data/DataTexts.h"
#include "link/LinkTexts.h"
#include "link/ReceivedFiling.h"

namespace brask {
namespace {

using namespace link_texts;

// Ten attempts a second at most: each may cost the system a socket and a look around.
constexpr std::int64_t kBetweenAttempts = 100;  // milliseconds
// How long the last line feed may come behind its CR.
constexpr std::int64_t kLineFeedWait = 200;  // milliseconds
constexpr int kBeeps = 3;

}  // namespace

DownloadSession::DownloadSession(InfraredSockets& sockets, const LinkSystem& system,
                                 const LinkData& data, DownloadView& view, DownloadOptions options)
    : system_(system),
      data_(data),
      view_(view),
      options_(options),
      transport_({sockets, system.User, system.Words, system.Information, system.Time,
                  [this] { return KeepGoing(); }}) {}

DownloadReport DownloadSession::Run() {
    data_.Session.State = CollectState::kRunning;
    begun_ = system_.Time.SteadyMilliseconds();
    const Ending ending = RunSteps();
    // after whichever receive of theirs it was
    if (const auto& reason = transport_.Broken()) {
        Log(kLogBroken, {std::to_string(report_.Bytes), *reason});
    }
    // In one place for every ending, so that none can leave the link open or the main window
    // waiting. Done again when the steps have done so already, for the endings in between
    transport_.CloseInstrument();
    transport_.StopSockets();
    if (ending == Ending::kCancelled || !report_.Accepted) data_.Session.ReceivedFile.clear();
    // A cancel has put its own state there, which the main window may have seen already.
    if (data_.Session.State == CollectState::kRunning) {
        data_.Session.State =
            ending == Ending::kFinished ? CollectState::kFinished : CollectState::kCancelled;
    }
    ClearLabels();
    Enter(DownloadStep::kEnded);
    return report_;
}

DownloadSession::Ending DownloadSession::RunSteps() {
    if (!BeginRawFile()) return Ending::kFinished;
    ClearLabels();
    transport_.ClearStatusText();
    SetLabel(0, system_.Words.Find(kWaitingFor));
    SetLabel(1, system_.Words.Find(kToConnect));
    SetPrompt(true);
    transport_.ClearLibraryFailed();
    if (!StartLibrary() || !AwaitConnection()) return Ending::kCancelled;
    if (!Receive()) {
        // A part of the readings may be all that is ever got of them.
        KeepStream();
        if (!transport_.Broken()) Log(kLogCancelled, {std::to_string(report_.Bytes)});
        return Ending::kCancelled;
    }
    Finish();
    return KeepGoing() ? Ending::kFinished : Ending::kCancelled;
}

void DownloadSession::Cancel() {
    if (data_.Session.State != CollectState::kRunning) return;
    // The run itself closes everything when it sees this, which is within one short wait.
    data_.Session.State = CollectState::kCancelled;
    data_.Session.ReceivedFile.clear();
}

bool DownloadSession::BeginRawFile() {
    const auto created = system_.Disk.CreateTemporary("CFG");
    if (!created.Ok()) {
        Tell(system_.Words.Fill(kNoRawFile, {created.Why().Reason}));
        return false;
    }
    report_.RawFile = created.Value();
    // As it has always been: until the file is accepted this names the raw stream.
    data_.Session.ReceivedFile = report_.RawFile;
    return true;
}

bool DownloadSession::StartLibrary() {
    if (!KeepGoing()) return false;
    if (!transport_.StartSockets()) {
        // instead of the prompt: no key on the instrument helps any more
        SetPrompt(false);
        SetLabel(4, transport_.StatusText());
        return false;
    }
    SetLabel(3, system_.Words.Find(kWinsockConnected));
    return true;
}

// Tries until the connection stands; false when the session is to be cancelled.
bool DownloadSession::AwaitConnection() {
    Enter(DownloadStep::kConnecting);
    for (;;) {
        if (!KeepGoing()) return false;
        const std::int64_t next = system_.Time.SteadyMilliseconds() + kBetweenAttempts;
        const ConnectOutcome outcome = transport_.ConnectInstrument();
        // also when the output command could not be sent: the instrument would wait for it for ever
        if (transport_.LibraryFailed() || !KeepGoing()) return false;
        if (outcome == ConnectOutcome::kConnected) break;
        if (outcome != ConnectOutcome::kNothing) return false;
        // An attempt that took long enough by itself needs no rest.
        while (system_.Time.SteadyMilliseconds() < next) {
            transport_.Rest();
            if (!KeepGoing()) return false;
        }
    }
    connected_ = true;
    return true;
}

// Receives until the data have ended or no more come; false when the session is to be cancelled.
bool DownloadSession::Receive() {
    Enter(DownloadStep::kReceiving);
    SetPrompt(false);
    ClearLabels();
    display_.Bytes = 0;
    SetLabel(0, system_.Words.Find(kDataTransfer));
    IdleTimer idle(system_.Time, IdleTimer::kWaiting);
    while (!idle.RunOut()) {
        if (!KeepGoing()) return false;
        const ReceivedText received = transport_.ReceiveText();
        if (received.Text.empty()) {
            if (!received.Closed) continue;
            // Nothing can come any more: without this the wait for the first byte would never end.
            if (idle.Waiting()) {
                Log(kLogClosed, {});
                return true;
            }
            // After data the seconds of silence run as for a link that is only quiet; a closed one
            // answers at once, and asking it again and again would keep the processor busy.
            transport_.Rest();
            continue;
        }
        // the user put the instrument down and looks elsewhere
        if (idle.Waiting()) {
            for (int i = 0; i < kBeeps; ++i) system_.User.Beep();
        }
        if (!TakeBlock(received.Text)) return true;
        idle.SetBack();
        if (end_.Met()) {
            AwaitLineFeed();
            return true;
        }
    }
    return KeepGoing();
}

// False when the block could not be written.
bool DownloadSession::TakeBlock(const std::string& text) {
    // At once and block by block: a crash a moment later loses none of them.
    if (Status written = system_.Disk.Append(report_.RawFile, text); !written.Ok()) {
        ReportUnwritten(report_.RawFile, written.Why().Reason);
        return false;
    }
    end_.Add(text);
    report_.Bytes += static_cast<std::int64_t>(text.size());
    display_.Bytes = report_.Bytes;
    SetLabel(1, system_.Words.Fill(kReceivedBytes, {std::to_string(report_.Bytes)}));
    return true;
}

void DownloadSession::AwaitLineFeed() {
    const std::int64_t until = system_.Time.SteadyMilliseconds() + kLineFeedWait;
    while (!end_.LineFeedCame() && system_.Time.SteadyMilliseconds() < until && KeepGoing()) {
        const ReceivedText received = transport_.ReceiveText();
        if (received.Closed) return;
        if (!received.Text.empty() && !TakeBlock(received.Text)) return;
    }
}

void DownloadSession::Finish() {
    Log(kLogReceived, {std::to_string(report_.Bytes), report_.RawFile});
    if (report_.Bytes == 0) return;
    // Before expanding, which takes the previous line's place; and before the end of the run is
    // asked for, which may have come during the last wait.
    KeepStream();
    if (!KeepGoing()) return;
    Enter(DownloadStep::kVerifying);
    ReceivedFiling filing(system_, data_, [this] { return KeepGoing(); });
    const FiledDownload filed = filing.VerifyAndFile(report_.RawFile);
    report_.File = filed.File;
    if (!filed.Accepted || !KeepGoing()) return;
    report_.Accepted = true;
    data_.Session.ReceivedFile = filed.File;
    if (options_.Clear.value_or(data_.Options.IsNotNo("AutoClear"))) ClearInstrument();
}

// What was received goes to the recovery folder, where it is found again when the temporary
// directory has been emptied.
void DownloadSession::KeepStream() {
    if (report_.Bytes == 0) return;
    const auto kept = data_.Recovery.KeepStream(report_.RawFile, data_.Expander.PreviousLine());
    if (kept.Ok()) return;
    Warn(system_.Words.Fill(kNoRecoveryCopy, {report_.RawFile, kept.Why().Reason}));
}

// Whether the readings would survive a power cut now. Until then they must stay in the instrument.
bool DownloadSession::SafeOnDisk() {
    for (const std::string& path : {report_.RawFile, report_.File}) {
        const Status flushed = system_.Disk.Flush(path);
        if (flushed.Ok()) continue;
        Warn(system_.Words.Fill(kNotClearedUnsafe, {path, flushed.Why().Reason}));
        return false;
    }
    return true;
}

void DownloadSession::ClearInstrument() {
    if (!SafeOnDisk() || !KeepGoing()) return;
    Enter(DownloadStep::kClearing);
    SetLabel(0, system_.Words.Find(kClearing));
    if (transport_.SendText(kClearCommand) == 0) {
        // The readings are safe, so this is no reason to give the file up; but they are still in
        // the instrument.
        ShowText(kNoClearAnswer);
        return;
    }
    AwaitClearAnswer();
}

void DownloadSession::AwaitClearAnswer() {
    IdleTimer idle(system_.Time, 0);
    while (!idle.RunOut()) {
        if (!KeepGoing()) return;
        ReceivedText received = transport_.ReceiveText();
        // fillers and joined control bytes may stand in the middle of the answer
        std::erase(received.Text, '\0');
        if (!received.Text.empty()) {
            report_.Cleared = received.Text.find(kClearAnswer) != std::string::npos;
            ShowText(report_.Cleared ? kCleared : kNotCleared);
            return;
        }
        // no answer can come any more
        if (received.Closed) break;
    }
    if (KeepGoing()) ShowText(kNoClearAnswer);
}

bool DownloadSession::KeepGoing() {
    system_.User.LetEventsRun();
    if (data_.Session.State != CollectState::kRunning || system_.User.Ended()) return false;
    if (!GiveUpDue()) return true;
    report_.GivenUp = true;
    Log(kLogGivenUp, {});
    Cancel();
    return false;
}

bool DownloadSession::GiveUpDue() const {
    return !connected_ && options_.ConnectTimeout &&
           system_.Time.SteadyMilliseconds() - begun_ >= *options_.ConnectTimeout;
}

void DownloadSession::SetLabel(std::size_t index, const std::string& text) {
    display_.Labels[index] = text;
    view_.OnDownload(display_);
}

void DownloadSession::SetPrompt(bool on) {
    display_.Prompt = on;
    display_.Labels[4] = on ? system_.Words.Find(kPressAnyKey) : "";
    SetLabel(5, on ? system_.Words.Find(kOnTheInstrument) : "");
}

void DownloadSession::ClearLabels() {
    display_.Labels.fill("");
    view_.OnDownload(display_);
}

void DownloadSession::Enter(DownloadStep step) {
    display_.Step = step;
    view_.OnDownload(display_);
}

void DownloadSession::ReportUnwritten(const std::string& path, const std::string& reason) {
    Tell(system_.Words.Fill(data_texts::kCannotWrite, {path, reason}));
}

void DownloadSession::Tell(const std::string& line) {
    data_.Log.WriteLog(line);
    system_.User.ShowNotice(line);
}

void DownloadSession::Warn(const std::string& line) {
    Tell(line);
    // both may happen in one run
    report_.Warning += (report_.Warning.empty() ? "" : "; ") + line;
}

void DownloadSession::Log(const TextRow& row, std::initializer_list<std::string_view> arguments) {
    data_.Log.WriteLog(system_.Words.Fill(kLogDownload, {system_.Words.Fill(row, arguments)}));
}

void DownloadSession::ShowText(const TextRow& row) {
    system_.User.ShowMessage(
        {system_.Words.Find(data_texts::kProgramTitle), system_.Words.Find(row)});
}

}  // namespace brask
