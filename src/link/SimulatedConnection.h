// One connection to the simulated instrument: takes the frames that arrive and yields those that
// are due. Without sockets and without waiting, so that every fault can be tried in no time.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "link/SimulatedInstrument.h"
#include "platform/Clock.h"
#include "platform/Result.h"
#include "platform/Texts.h"
#include "platform/simulated/InfraredFrames.h"

namespace brask {

class SimulatedConnection {
  public:
    // What everything here works with; must outlive it. Note is called with one line for people for
    // everything that happens, the text of every command included.
    struct Needs {
        SimulatedInstrument& Instrument;
        const Clock& Time;
        const Texts& Words;
        std::function<void(const std::string& line)> Note;
    };

    explicit SimulatedConnection(Needs needs) : needs_(std::move(needs)) {}

    // Handles one frame that has arrived. An error means that it makes no sense and the connection
    // is to be closed.
    Status Take(const InfraredFrame& frame);
    // The next frame to send now, encoded; nothing when none is due. To be called until then.
    std::optional<std::string> NextFrame();
    // Milliseconds until NextFrame may have something without another frame arriving; nothing when
    // it will not.
    std::optional<std::int64_t> NextDue() const;
    // Whether this side closes the link as soon as the frames yielded so far are out.
    bool HangsUp() const { return hangsUp_; }
    // Whether a connect was asked for, refused ones included: such a connection is a session.
    bool IsSession() const { return isSession_; }

  private:
    Status TakeConnect(const std::string& address);
    void TakeCommand(std::string_view text);
    void BeginStream();
    void AnswerClear(const std::string& command);
    std::string NextDataFrame();
    // Whether the stream, or the part of it that goes out, has gone out.
    bool StreamDone() const { return position_ == end_; }
    void FinishStream();

    Needs needs_;
    std::string answers_;  // frames that wait for no time
    std::string stream_;
    std::size_t position_ = 0;
    std::size_t end_ = 0;  // of what goes out of the stream
    std::int64_t due_ = 0;
    bool isSession_ = false;
    bool connected_ = false;
    bool silent_ = false;
    bool hangsUp_ = false;
};

}  // namespace brask
