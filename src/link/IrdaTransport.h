// The small layer under the download: finds the instrument among the infrared devices in range,
// connects, sends command texts, receives text. Keeps the one socket of a download, and tells the
// user about every failure by the texts that manuals name.
//
// On the link every block of text has one control byte of 0 in front, put there when sending and
// taken off when receiving.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/InfraredSockets.h"
#include "platform/SystemInformation.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

enum class ConnectOutcome {
    kConnected,     // and the output command is on its way
    kNotSupported,  // this system has no infrared sockets; the user was told
    kNothing,       // nobody connected this time: try again
    kAborted,       // a failure that the system has no text for; the user was told: give up
};

struct ReceivedText {
    std::string Text;     // without its control byte; empty when nothing came
    bool Closed = false;  // the other side has closed
};

class IrdaTransport {
  public:
    struct Needs {
        InfraredSockets& Sockets;
        UserInterface& User;
        const Texts& Words;
        const SystemInformation& Information;
        const Clock& Time;
        // Lets events run; false when waiting is to end. Asked between short waits.
        std::function<bool()> KeepGoing;
    };

    explicit IrdaTransport(Needs needs) : needs_(std::move(needs)) {}

    // Makes the sockets of the system ready. A failure is reported and sets LibraryFailed.
    bool StartSockets();
    // One attempt: looks who is in range and connects to the instrument. Waits for as long as the
    // system needs for that and KeepGoing allows; a socket that did not connect is closed.
    ConnectOutcome ConnectInstrument();
    // Sends one command text; the number of bytes sent, 0 on failure, which is reported and sets
    // LibraryFailed.
    std::size_t SendText(std::string_view text);
    // Sends ahead of what was sent before. The number of characters sent; -1 when nothing was: not
    // writable just now, an empty text, or a failure, which is reported.
    std::int64_t SendUrgent(std::string_view text);
    // One receive, after letting events run. A failing link is reported, and then the program ends:
    // nobody knows what the instrument makes of a half-taken transfer.
    ReceivedText ReceiveText();
    // Closes the socket, if one is open.
    void CloseInstrument();
    // Waits the short while that a receive without data waits.
    void Rest() { needs_.Sockets.Rest(); }
    // The counterpart of StartSockets; does nothing when that has not succeeded.
    void StopSockets();

    // The system's text for a socket error number, or "??? Unknown Error #" and the number.
    std::string SocketErrorText(int number) const;

    // The last error's text, or "Connected to " and the device's name. For showing to the user.
    const std::string& StatusText() const { return statusText_; }
    // Why a receive failed, for the log: the system's text, then what the link itself says where
    // that is something else. Nothing as long as none has failed.
    const std::optional<std::string>& Broken() const { return broken_; }
    void ClearStatusText() { statusText_.clear(); }
    int LastSocketError() const { return lastError_; }
    // Set when starting, listing devices or sending has failed: the download is to be cancelled.
    bool LibraryFailed() const { return libraryFailed_; }
    void ClearLibraryFailed() { libraryFailed_ = false; }

  private:
    // Keeps the number of an error; its text.
    std::string Note(const Error& error);
    // The error dialog of an operation; its button Cancel closes the link and ends the program.
    void ShowError(const char* operation, const std::string& description);
    ConnectOutcome Attempt();
    bool FindDevices(InfraredDeviceList& devices);
    ConnectOutcome ReportConnectFailure(const Error& error);

    Needs needs_;
    std::unique_ptr<InfraredSocket> socket_;
    std::string statusText_;
    std::optional<std::string> broken_;
    int lastError_ = 0;
    bool started_ = false;
    bool libraryFailed_ = false;
};

}  // namespace brask
