#include "platform/simulated/TcpInfraredSockets.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/InfraredBlocks.h"
#include "platform/simulated/InfraredFrames.h"

namespace brask {
namespace {

// Large enough that small frames arrive by the dozen.
constexpr std::size_t kReceiveSize = std::size_t{64} * 1024;

// What one look at the connection brought.
struct Incoming {
    std::optional<InfraredFrame> Frame;
    bool Closed = false;
};

class TcpInfraredSocket final : public InfraredSocket {
  public:
    TcpInfraredSocket(Tcp& network, TcpAddress address, LinkErrorNumbers numbers)
        : network_(network), address_(std::move(address)), numbers_(numbers) {}

    Result<bool> ListDevices(InfraredDeviceList& devices) override {
        devices.fill('\0');
        if (!stream_) {
            auto begun = network_.Connect(address_);
            if (!begun.Ok()) return begun.Why();
            stream_ = std::move(begun.Value());
        }
        const auto connected = stream_->Connected(kInfraredWait);
        // nobody listens: out of range, as an instrument that is switched off
        if (!connected.Ok()) return true;
        if (!connected.Value()) return false;
        const auto answer = Ask(FrameType::kDevices, {});
        if (!answer.Ok() && answer.Why().Number == numbers_.Closed) return true;
        if (!answer.Ok()) return answer.Why();
        if (!answer.Value()) return false;
        // cut as a system would cut it that was given a buffer of this size
        const std::string& list = *answer.Value();
        std::copy_n(list.begin(), std::min(list.size(), devices.size()), devices.begin());
        return true;
    }

    Result<bool> Connect(const InfraredAddress& address) override {
        if (!stream_) return Error{numbers_.Closed, "no link"};
        const auto answer = Ask(FrameType::kConnect, {address.data(), address.size()});
        if (!answer.Ok()) return answer.Why();
        if (!answer.Value()) return false;
        const std::string& refusal = *answer.Value();
        if (refusal.empty()) return true;
        if (refusal.size() != 4) return BadFrame("the answer to connecting has an odd length");
        unsigned number = 0;
        for (const char c : refusal) number = number << 8U | static_cast<unsigned char>(c);
        return Error{static_cast<int>(number), "refused"};
    }

    Result<std::size_t> Send(std::string_view bytes) override {
        if (!stream_) return Error{numbers_.Closed, "no link"};
        outgoing_ += EncodeFrame(FrameType::kData, bytes);
        if (Status pushed = Push(); !pushed.Ok()) return pushed.Why();
        return bytes.size();
    }
    // Frames have no way around those in front of them.
    Result<std::size_t> SendUrgent(std::string_view bytes) override { return Send(bytes); }
    bool Writable() override { return stream_ && outgoing_.empty() && stream_->Writable(); }

    Result<ReceivedBlock> Receive() override {
        auto incoming = NextFrame();
        if (!incoming.Ok()) return incoming.Why();
        ReceivedBlock block;
        block.Closed = incoming.Value().Closed;
        if (auto& frame = incoming.Value().Frame) {
            // answers to questions that nobody asked
            if (frame->Type != FrameType::kData) return BadFrame("a frame out of turn");
            block.Bytes = blocks_.Next(std::move(frame->Payload), false);
        }
        return block;
    }

    Status Close() override { return stream_ ? stream_->Close() : Status(); }

  private:
    Error BadFrame(const std::string& reason) const { return {numbers_.BadFrame, reason}; }

    // Sends what the other side has not taken yet.
    Status Push() {
        if (outgoing_.empty()) return {};
        const auto sent = stream_->Send(outgoing_, kInfraredWait);
        if (!sent.Ok()) return sent.Why();
        outgoing_.erase(0, sent.Value());
        return {};
    }

    // The answer to a question, which is sent once however often this is called; nothing while it
    // is outstanding.
    Result<std::optional<std::string>> Ask(FrameType type, std::string_view question) {
        if (asked_ != type) {
            asked_ = type;
            outgoing_ += EncodeFrame(type, question);
        }
        auto incoming = NextFrame();
        if (!incoming.Ok()) return incoming.Why();
        auto& frame = incoming.Value().Frame;
        if (incoming.Value().Closed) return Error{numbers_.Closed, "closed instead of an answer"};
        if (!frame) return std::optional<std::string>();
        if (frame->Type != type) return BadFrame("another frame than the answer");
        asked_.reset();
        return std::optional(std::move(frame->Payload));
    }

    Result<Incoming> NextFrame() {
        if (!stream_) return Error{numbers_.Closed, "no link"};
        if (Status pushed = Push(); !pushed.Ok()) return pushed.Why();
        Incoming incoming;
        // What has arrived comes first: a closed link still has all that was sent before.
        auto frame = decoder_.Next();
        if (frame.Ok() && !frame.Value()) {
            auto got = stream_->Receive(kReceiveSize, kInfraredWait);
            if (!got.Ok()) return got.Why();
            decoder_.Append(got.Value().Bytes);
            incoming.Closed = got.Value().Closed;
            frame = decoder_.Next();
        }
        if (!frame.Ok()) return BadFrame(frame.Why().Reason);
        incoming.Frame = std::move(frame.Value());
        return incoming;
    }

    Tcp& network_;
    TcpAddress address_;
    LinkErrorNumbers numbers_;
    std::unique_ptr<TcpStream> stream_;
    std::string outgoing_;
    std::optional<FrameType> asked_;
    InfraredFrameDecoder decoder_;
    InfraredBlocks blocks_;
};

}  // namespace

Result<std::unique_ptr<InfraredSocket>> TcpInfraredSockets::Open() {
    std::unique_ptr<InfraredSocket> socket =
        std::make_unique<TcpInfraredSocket>(network_, address_, numbers_);
    return socket;
}

}  // namespace brask
