#include "platform/simulated/InfraredFrames.h"

namespace brask {
namespace {

constexpr std::size_t kHeaderSize = 3;
// Handed-out bytes are removed in one go, not frame by frame: moving the rest each time would cost
// more than all else when many small frames arrive together.
constexpr std::size_t kTidyLimit = 65536;

bool Known(char type) {
    return type == static_cast<char>(FrameType::kDevices) ||
           type == static_cast<char>(FrameType::kConnect) ||
           type == static_cast<char>(FrameType::kData);
}

}  // namespace

std::string EncodeFrame(FrameType type, std::string_view payload) {
    payload = payload.substr(0, kMaxFramePayload);
    std::string frame;
    frame.reserve(kHeaderSize + payload.size());
    frame += static_cast<char>(type);
    frame += static_cast<char>(payload.size() >> 8U);
    frame += static_cast<char>(payload.size() & 0xFFU);
    frame += payload;
    return frame;
}

Result<std::optional<InfraredFrame>> InfraredFrameDecoder::Next() {
    for (;;) {
        const std::string_view rest = std::string_view(pending_).substr(taken_);
        // Judged by its first byte: waiting for the length of what is no frame could last for ever.
        if (!rest.empty() && !Known(rest[0])) {
            const int type = static_cast<unsigned char>(rest[0]);
            return Error{0, "a frame of unknown type " + std::to_string(type)};
        }
        if (rest.size() < kHeaderSize) return std::optional<InfraredFrame>();
        const auto high = static_cast<unsigned char>(rest[1]);
        const auto low = static_cast<unsigned char>(rest[2]);
        const std::size_t length = high * 256U + low;
        if (length > kMaxFramePayload) {
            return Error{0, "a frame of " + std::to_string(length) + " bytes"};
        }
        if (rest.size() < kHeaderSize + length) return std::optional<InfraredFrame>();
        InfraredFrame frame{FrameType{rest[0]}, std::string(rest.substr(kHeaderSize, length))};
        taken_ += kHeaderSize + length;
        if (taken_ == pending_.size() || taken_ > kTidyLimit) {
            pending_.erase(0, taken_);
            taken_ = 0;
        }
        if (frame.Type != FrameType::kData || length != 0) return std::optional(std::move(frame));
    }
}

}  // namespace brask
