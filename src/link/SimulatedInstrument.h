// An instrument without the instrument: what it holds, who is in range, how it answers, and which
// faults it shows. Knows nothing of sockets or time; SimulatedConnection plays one connection.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "link/InstrumentMemory.h"
#include "platform/Result.h"
#include "platform/Texts.h"

namespace brask {

// How it behaves. The defaults are an instrument without faults. Positions count the bytes of the
// stream from 0, without control bytes; for SilentAfter and CutAfter fillers count, too, since they
// speak of what went out.
struct InstrumentBehaviour {
    std::string Name = "VEK TK42";         // at most 22 bytes
    int Devices = 1;                       // in range, 0 to 255; all but the first are strangers
    std::size_t BlockSize = 512;           // bytes of the stream in a block, 1 to 8191
    std::int64_t DelayMilliseconds = 0;    // between two frames
    std::int64_t Merge = 1;                // blocks joined in a frame, as many as it can hold
    std::optional<std::int64_t> Filler{};  // a byte 0 after every so many bytes, from 1 on
    std::optional<std::int64_t> SilentAfter{};  // sends nothing any more, the link stays
    std::optional<std::int64_t> CutAfter{};     // closes the link
    std::optional<std::int64_t> Corrupt{};      // inverts the lowest bit of this byte
    std::optional<std::int64_t> DropLine{};     // leaves out this data line, counted from 1
    std::optional<std::int64_t> Count{};        // what "END DATA:" announces instead of the truth
    std::optional<std::uint32_t> Refuse{};      // the error number that a connect is refused with
    std::optional<std::string> ClearAnswer = "[OK]";  // nothing: the command stays unanswered
};

class SimulatedInstrument {
  public:
    // Reads a data file's bytes. Fails with a reason when the file cannot be sent
    // (InstrumentMemory::Read) or has not the line or the byte that a fault is meant for.
    static Result<SimulatedInstrument> Create(std::string_view file, InstrumentBehaviour behaviour,
                                              const Texts& texts);

    const InstrumentBehaviour& Behaviour() const { return behaviour_; }
    // The list as systems hand it out: the number of devices in byte 0, from byte 4 on 30 bytes a
    // device.
    std::string DeviceList() const;
    // The whole answer to the output command, faults of the data and fillers included.
    std::string Stream() const;
    std::int64_t DataLineCount() const { return memory_.DataLineCount(); }
    // What it answers to the clear command; nothing when it stays silent. Readings are gone only
    // after an answer that says so: one that holds "[OK]".
    std::optional<std::string> AnswerClear();
    bool Cleared() const { return cleared_; }

  private:
    SimulatedInstrument(InstrumentMemory memory, InstrumentBehaviour behaviour)
        : memory_(std::move(memory)), behaviour_(std::move(behaviour)) {}

    InstrumentMemory memory_;
    InstrumentBehaviour behaviour_;
    bool cleared_ = false;
};

}  // namespace brask
