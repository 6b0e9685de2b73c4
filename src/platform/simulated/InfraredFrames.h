// The frames that carry the simulated infrared link over a byte stream:
//
//   type (1 byte) | payload length (2 bytes, big-endian) | payload
//
// E asks who is in range and brings the device list, C connects and brings the answer to that, D
// carries one block in either direction.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Result.h"

namespace brask {

enum class FrameType : char { kDevices = 'E', kConnect = 'C', kData = 'D' };

inline constexpr std::size_t kMaxFramePayload = 8192;

struct InfraredFrame {
    FrameType Type = FrameType::kData;
    std::string Payload;  // at most kMaxFramePayload bytes
};

// The bytes of one frame. A payload that is too long is cut.
std::string EncodeFrame(FrameType type, std::string_view payload);

// Takes a byte stream apart, however it arrives in pieces.
class InfraredFrameDecoder {
  public:
    // Adds what has arrived.
    void Append(std::string_view bytes) { pending_ += bytes; }
    // The next whole frame, nothing when more bytes are needed first. Data frames without payload
    // are left out. An unknown type or a payload that is too long is an error, and stays one:
    // where the next frame begins is not known any more.
    Result<std::optional<InfraredFrame>> Next();
    // Whether a frame has begun and not ended: a stream that closes now was cut.
    bool Partial() const { return taken_ < pending_.size(); }

  private:
    std::string pending_;
    std::size_t taken_ = 0;  // bytes of pending_ that were handed out
};

}  // namespace brask
