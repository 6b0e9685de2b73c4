#include "link/IrdaTransport.h"

#include <utility>

#include "data/Windows1252.h"
#include "link/DeviceList.h"
#include "link/InstrumentCommands.h"
#include "link/LinkTexts.h"
#include "platform/AsciiText.h"
#include "platform/ProgramError.h"

namespace brask {
namespace {

using namespace link_texts;

constexpr std::string_view kControlByte("\0", 1);
// As often as the message loop has always had its turn before a receive; clicks that wait in a row
// are all taken.
constexpr int kTurnsBeforeReceive = 4;

// Calls an operation until it is done; nothing when the waiting was ended.
template <class Operation>
std::optional<Status> WaitUntilDone(const Operation& operation,
                                    const std::function<bool()>& keepGoing) {
    for (;;) {
        const Result<bool> done = operation();
        if (!done.Ok()) return Status(done.Why());
        if (done.Value()) return Status();
        if (!keepGoing()) return std::nullopt;
    }
}

}  // namespace

bool IrdaTransport::StartSockets() {
    const Status started = needs_.Sockets.Start();
    started_ = started.Ok();
    if (started_) return true;
    // Kept besides being shown: the download's window has a place for it.
    statusText_ = Note(started.Why());
    libraryFailed_ = true;
    ShowError("WSAStartup", statusText_);
    return false;
}

ConnectOutcome IrdaTransport::ConnectInstrument() {
    auto opened = needs_.Sockets.Open();
    if (!opened.Ok()) {
        lastError_ = opened.Why().Number;
        needs_.User.ShowMessage(
            {needs_.Words.Find(kNotSupportedTitle), needs_.Words.Find(kNotSupported)});
        return ConnectOutcome::kNotSupported;
    }
    socket_ = std::move(opened.Value());
    const ConnectOutcome outcome = Attempt();
    if (outcome != ConnectOutcome::kConnected) CloseInstrument();
    return outcome;
}

ConnectOutcome IrdaTransport::Attempt() {
    InfraredDeviceList devices{};
    if (!FindDevices(devices)) return ConnectOutcome::kNothing;
    const FoundDevice device = FindInstrument(devices);
    // Silently: a telephone in range is no failure, and the instrument may come yet.
    if (!device.Accepted) return ConnectOutcome::kNothing;
    const InfraredAddress address = ServiceAddress(devices);
    const auto connected =
        WaitUntilDone([&] { return socket_->Connect(address); }, needs_.KeepGoing);
    if (!connected) return ConnectOutcome::kNothing;
    if (!connected->Ok()) return ReportConnectFailure(connected->Why());
    statusText_ = needs_.Words.Fill(kConnectedTo, {Windows1252ToUtf8(device.Name)});
    // At once, with the time of this moment: it is part of the command. A failure shows
    // in LibraryFailed.
    SendText(OutputCommand(needs_.Time.Now()));
    return ConnectOutcome::kConnected;
}

bool IrdaTransport::FindDevices(InfraredDeviceList& devices) {
    const auto listed =
        WaitUntilDone([&] { return socket_->ListDevices(devices); }, needs_.KeepGoing);
    if (!listed) return false;
    if (listed->Ok()) return true;
    statusText_ = Note(listed->Why());
    libraryFailed_ = true;
    ShowError("GetSockOpt", statusText_);
    return false;
}

ConnectOutcome IrdaTransport::ReportConnectFailure(const Error& error) {
    std::string text = Note(error);
    // no number, no text: the system has not said what it was
    if (error.Number == 0) text.clear();
    statusText_ = text;
    const std::string number = std::to_string(error.Number);
    // What the system knows is worth another attempt; what it does not know has never gone away by
    // itself.
    if (!ContainsIgnoringCase(text, "unknown")) {
        ShowError("Connect", needs_.Words.Fill(kConnectFailure, {text, number}));
        return ConnectOutcome::kNothing;
    }
    needs_.User.ShowMessage(
        {needs_.Words.Find(kConnectUnknownTitle), needs_.Words.Fill(kConnectUnknown, {number})});
    return ConnectOutcome::kAborted;
}

std::size_t IrdaTransport::SendText(std::string_view text) {
    if (!socket_) return 0;
    const auto sent = socket_->Send(std::string(kControlByte) += text);
    if (sent.Ok()) return sent.Value();
    libraryFailed_ = true;
    needs_.User.ShowMessage({needs_.Words.Find(kSendFailureTitle), Note(sent.Why())});
    return 0;
}

std::int64_t IrdaTransport::SendUrgent(std::string_view text) {
    if (!socket_ || text.empty() || !socket_->Writable()) return -1;
    const auto sent = socket_->SendUrgent(std::string(kControlByte) += text);
    if (sent.Ok()) return static_cast<std::int64_t>(sent.Value()) - 1;
    ShowError("Send", Note(sent.Why()));
    return -1;
}

ReceivedText IrdaTransport::ReceiveText() {
    for (int turn = 0; turn < kTurnsBeforeReceive; ++turn) {
        if (!needs_.KeepGoing()) return {};
    }
    if (!socket_) return {};
    auto received = socket_->Receive();
    if (!received.Ok()) {
        statusText_ = Note(received.Why());
        const std::string& reason = received.Why().Reason;
        broken_ = reason == statusText_ ? reason : statusText_ + " (" + reason + ")";
        needs_.User.ShowMessage({needs_.Words.Find(kReceiveFailureTitle), statusText_});
        // closed first, since nothing runs any more once the program is ending
        CloseInstrument();
        needs_.User.EndProgram();
        return {};
    }
    ReceivedBlock& block = received.Value();
    if (!block.Bytes.empty()) block.Bytes.erase(0, 1);
    return {std::move(block.Bytes), block.Closed};
}

void IrdaTransport::CloseInstrument() {
    // out of its place first: a click on a message's button must not find it again
    const auto socket = std::exchange(socket_, nullptr);
    if (!socket) return;
    const Status closed = socket->Close();
    if (!closed.Ok()) ShowError("CloseSocket", Note(closed.Why()));
}

void IrdaTransport::StopSockets() {
    if (std::exchange(started_, false)) needs_.Sockets.Stop();
}

std::string IrdaTransport::SocketErrorText(int number) const {
    return SystemErrorText(needs_.Information, needs_.Words, number);
}

std::string IrdaTransport::Note(const Error& error) {
    lastError_ = error.Number;
    return SocketErrorText(error.Number);
}

void IrdaTransport::ShowError(const char* operation, const std::string& description) {
    // the user has been told, or has left; closing what is open goes on without a word
    if (needs_.User.Ended()) return;
    if (ShowProgramError(needs_.User, needs_.Words, {operation, description, "", true})) return;
    CloseInstrument();
}

}  // namespace brask
