#include <gtest/gtest.h>

#include "platform/InfraredBlocks.h"
#include "platform/InstrumentAddress.h"
#include "platform/NativeSystem.h"
#include "platform/simulated/InfraredFrames.h"
#include "platform/simulated/TcpInfraredSockets.h"

namespace brask {
namespace {

// What a program makes of a stream of blocks as a system hands it out: receives of at most `most`
// bytes, which join blocks that wait together and cut the last one. Each block's control byte is
// dropped, and fillers.
std::string Received(const std::string& waiting, std::size_t most) {
    InfraredBlocks blocks;
    std::string text;
    for (std::size_t at = 0; at < waiting.size(); at += most) {
        const std::string part = waiting.substr(at, most);
        const std::string block = blocks.Next(part, part.size() == most);
        if (!block.empty()) text += block.substr(1);
    }
    std::erase(text, '\0');
    return text;
}

TEST(InfraredBlocks, CutAndJoinedAtEveryByteNothingIsLost) {
    const std::string nul(1, '\0');
    // control bytes of the first block: one, counted ones
    for (const std::string& control :
         {nul, std::string("\x01z"), std::string("\x04\x02\x00\x80\xFFz", 5)}) {
        const std::string waiting = control + "first block" + nul + "second" + nul + "3";
        for (std::size_t most = 1; most <= waiting.size() + 1; ++most) {
            EXPECT_EQ(Received(waiting, most), "first blocksecond3") << control.size() << most;
        }
    }
}

TEST(InfraredBlocks, WholeBlocksStayAsTheyAre) {
    InfraredBlocks blocks;
    const std::string first("\0A", 2);
    EXPECT_EQ(blocks.Next("", false), "");
    EXPECT_EQ(blocks.Next(first, false), first);
    // only the first block of a connection has counted control bytes
    EXPECT_EQ(blocks.Next("\2BC", false), "\2BC");
    // a count that a block has no room for is a single control byte
    EXPECT_EQ(InfraredBlocks().Next("\11BC", false), std::string("\0BC", 3));
    EXPECT_EQ(InfraredBlocks().Next("\2BC", false), std::string(1, '\0'));
}

TEST(InstrumentAddress, Forms) {
    EXPECT_FALSE(ParseInstrumentAddress("irda")->Simulated);
    EXPECT_EQ(TcpAddressText(ParseInstrumentAddress("tcp:[::1]:4711")->Simulated.value()),
              "[::1]:4711");
    for (const char* text : {"", "IRDA", "irda ", "tcp", "tcp:host", "tcp:host:0", "rapi"}) {
        EXPECT_FALSE(ParseInstrumentAddress(text)) << text;
    }
}

// A socket and the other side of its link, which a test plays by hand.
class TcpInfrared : public testing::Test {
  protected:
    static constexpr int kClosed = 1001;
    static constexpr int kBadFrame = 1002;

    void Open(std::uint16_t port) {
        TcpInfraredSockets sockets(network_, {"127.0.0.1", port}, {kClosed, kBadFrame});
        socket_ = std::move(sockets.Open().Value());
        peer_.reset();
    }
    // Calls until it is done; the other side answers the first question by these bytes, or closes.
    Status Ask(const std::function<Result<bool>()>& operation, const std::string& answer) {
        std::string asked;
        for (int i = 0; i < 100; ++i) {
            const auto done = operation();
            if (!done.Ok()) return done.Why();
            if (done.Value()) return {};
            if (!peer_) peer_ = std::move(listener_->Accept(kLongestTcpWait).Value());
            if (!peer_ || !asked.empty()) continue;
            asked = peer_->Receive(1000, kLongestTcpWait).Value().Bytes;
            if (asked.empty()) continue;
            if (answer == "close") {
                EXPECT_TRUE(peer_->Close().Ok());
            } else {
                EXPECT_EQ(peer_->Send(answer, kLongestTcpWait).Value(), answer.size());
            }
        }
        return Error{-1, "never done"};
    }
    Status ListDevices(const std::string& answer) {
        return Ask([this] { return socket_->ListDevices(devices_); }, answer);
    }

    NativeSystem system_;
    Tcp& network_ = system_.Network();
    std::unique_ptr<TcpListener> listener_ = std::move(network_.Listen({"127.0.0.1", 0}).Value());
    std::unique_ptr<TcpStream> peer_;
    std::unique_ptr<InfraredSocket> socket_;
    InfraredDeviceList devices_{};
};

TEST_F(TcpInfrared, AnswersToConnecting) {
    // the answer; the number of the error, 0 for none
    const std::pair<std::string, int> cases[] = {
        {EncodeFrame(FrameType::kConnect, "") + EncodeFrame(FrameType::kData, "\1zA"), 0},
        {EncodeFrame(FrameType::kConnect, std::string("\0\0\0\x6F", 4)), 111},
        {EncodeFrame(FrameType::kConnect, "\1"), kBadFrame},
        {EncodeFrame(FrameType::kData, "x"), kBadFrame},
        {"what", kBadFrame},
        {"close", kClosed}};
    for (const auto& [answer, number] : cases) {
        Open(listener_->Port());
        ASSERT_TRUE(ListDevices(EncodeFrame(FrameType::kDevices, std::string(400, 'd'))).Ok());
        EXPECT_EQ(std::string(devices_.data(), devices_.size()), std::string(300, 'd'));
        const Status connected = Ask([this] { return socket_->Connect({}); }, answer);
        EXPECT_EQ(connected.Ok() ? 0 : connected.Why().Number, number);
        // data that came together with the answer are not lost
        if (number != 0) continue;
        EXPECT_EQ(socket_->Receive().Value().Bytes, std::string("\0A", 2));
    }
}

TEST_F(TcpInfrared, NobodyThereIsNobodyInRange) {
    for (const std::uint16_t port : {listener_->Port(), std::uint16_t{1}}) {
        Open(port);
        devices_[0] = 9;
        EXPECT_TRUE(ListDevices("close").Ok());
        EXPECT_EQ(devices_[0], 0);
    }
}

}  // namespace
}  // namespace brask
