// Any bytes as frames of the simulated link: cutting the stream changes nothing, what was decoded
// encodes back to the stream, and the simulated instrument survives every frame.
#include <string>
#include <vector>

#include "FuzzInput.h"
#include "link/SimulatedConnection.h"
#include "platform/simulated/InfraredFrames.h"
#include "platform/simulated/ManualClock.h"

namespace brask {
namespace {

struct Decoded {
    std::vector<InfraredFrame> Frames;
    bool Failed = false;
};

// Takes the stream in pieces of this size.
Decoded Decode(std::string_view stream, std::size_t piece) {
    InfraredFrameDecoder decoder;
    Decoded decoded;
    for (std::size_t at = 0; at < stream.size(); at += piece) {
        decoder.Append(stream.substr(at, piece));
        for (;;) {
            const auto frame = decoder.Next();
            decoded.Failed = !frame.Ok();
            if (decoded.Failed) return decoded;
            if (!frame.Value()) break;
            Require(frame.Value()->Payload.size() <= kMaxFramePayload);
            decoded.Frames.push_back(*frame.Value());
        }
    }
    return decoded;
}

std::string Encode(const Decoded& decoded) {
    std::string stream;
    for (const auto& frame : decoded.Frames) stream += EncodeFrame(frame.Type, frame.Payload);
    return stream;
}

void Serve(const Decoded& decoded) {
    const EnglishTexts texts;
    const ManualClock clock;
    auto instrument = SimulatedInstrument::Create("INSTRUMENT: K\r\na,b,c\r\na,b,d\r\n", {}, texts);
    SimulatedConnection connection({instrument.Value(), clock, texts,
                                    [](const std::string& line) { Require(!line.empty()); }});
    for (const InfraredFrame& frame : decoded.Frames) {
        if (!connection.Take(frame).Ok()) return;
        while (const auto answer = connection.NextFrame()) {
            Require(!Decode(*answer, answer->size()).Failed);
        }
    }
}

}  // namespace
}  // namespace brask

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace brask;
    const std::string_view stream = FuzzText(bytes, size);
    const Decoded whole = Decode(stream, size + 1);
    for (const std::size_t piece : {1U, 7U}) {
        const Decoded cut = Decode(stream, piece);
        Require(cut.Failed == whole.Failed && Encode(cut) == Encode(whole));
    }
    const Decoded again = Decode(Encode(whole), size + 1);
    Require(!again.Failed && Encode(again) == Encode(whole));
    Serve(whole);
    return 0;
}
