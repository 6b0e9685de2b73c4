// One download from the instrument from start to end, without a window: start the sockets, wait for
// the instrument, receive its readings, verify and file them, clear the instrument when that is
// wanted, close everything.
//
// It runs on the one thread there is and lets events run all the while. Whoever shows it is told by
// a DownloadView and calls Cancel from those events.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "link/DownloadDisplay.h"
#include "link/IdleTimer.h"
#include "link/InstrumentCommands.h"
#include "link/IrdaTransport.h"
#include "link/LinkNeeds.h"

namespace brask {

struct DownloadOptions {
    // Whether to clear the instrument after a good download; the setting "AutoClear" when nothing.
    std::optional<bool> Clear;
    // When to give up while no connection stands, in milliseconds; never when nothing.
    std::optional<std::int64_t> ConnectTimeout;
};

struct DownloadReport {
    bool Accepted = false;
    bool Cleared = false;  // the instrument has said so
    bool GivenUp = false;  // no connection stood in time
    std::string File;      // where the data file lies, a rejected one too; empty for none
    std::string RawFile;   // the stream as received; it stays
    std::int64_t Bytes = 0;
    // What about the safety of the readings the user must not miss, shown as a notice already:
    // whatever is shown next takes a notice's place. Empty when all is well.
    std::string Warning;
};

class DownloadSession {
  public:
    DownloadSession(InfraredSockets& sockets, const LinkSystem& system, const LinkData& data,
                    DownloadView& view, DownloadOptions options);

    // Runs the download; to be called once. Sets the session's state to running and always to
    // another one before it returns: finished, with or without an accepted file, or cancelled. Its
    // received file is empty then unless the download was accepted.
    DownloadReport Run();

    // Ends the run, whatever it is waiting for: within 200 ms, but when a system's own look around
    // or a disk takes longer. The received file is given up, what was received stays on disk. Does
    // nothing when it has ended.
    void Cancel();

  private:
    enum class Ending { kFinished, kCancelled };

    Ending RunSteps();
    // The steps, in their order; false leads to the end of the run.
    bool BeginRawFile();
    bool StartLibrary();
    bool AwaitConnection();
    bool Receive();
    bool TakeBlock(const std::string& text);
    void AwaitLineFeed();
    void Finish();
    void KeepStream();
    bool SafeOnDisk();
    void ClearInstrument();
    void AwaitClearAnswer();
    // Lets events run; false once the run is to end, for whatever reason. Every loop asks it.
    bool KeepGoing();
    bool GiveUpDue() const;
    void SetLabel(std::size_t index, const std::string& text);
    void SetPrompt(bool on);
    void ClearLabels();
    void Enter(DownloadStep step);
    // Where no box is to be shown: status bar and log.
    void Tell(const std::string& line);
    // The same for what the report is to keep.
    void Warn(const std::string& line);
    void ReportUnwritten(const std::string& path, const std::string& reason);
    void Log(const TextRow& row, std::initializer_list<std::string_view> arguments);
    void ShowText(const TextRow& row);

    // What was given to it,
    LinkSystem system_;
    LinkData data_;
    DownloadView& view_;
    DownloadOptions options_;
    // and what it keeps.
    IrdaTransport transport_;
    DownloadDisplay display_;
    DownloadReport report_;
    EndOfData end_;
    // stood once; from then on nothing is given up for taking long
    bool connected_ = false;
    std::int64_t begun_ = 0;  // steady milliseconds; what giving up counts from
};

}  // namespace brask
