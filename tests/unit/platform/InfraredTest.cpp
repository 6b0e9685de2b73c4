#include <gtest/gtest.h>

#include "platform/InfraredBlocks.h"
#include "platform/InstrumentAddress.h"
#include "platform/NativeSystem.h"
#include "platform/simulated/InfraredFrames.h"
#include "platform/simulated/TcpInfraredSockets.h"

namespace brask {
namespace {

// What a program makes of blocks: drops each one's control byte, and fillers.
std::string TextOf(const std::vector<std::string>& blocks) {
    std::string text;
    for (const std::string& block : blocks) {
        if (!block.empty()) text += block.substr(1);
    }
    std::erase(text, '\0');
    return text;
}

// A stream of blocks as a system hands it out: receives of at most `most` bytes, which join blocks
// that wait together and cut the last one.
std::string Received(const std::string& waiting, std::size_t most) {
    InfraredBlocks blocks;
    std::vector<std::string> received;
    for (std::size_t at = 0; at < waiting.size(); at += most) {
        const std::string part = waiting.substr(at, most);
        received.push_back(blocks.Next(part, part.size() == most));
    }
    return TextOf(received);
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
    EXPECT_EQ(blocks.Next("\x02"
                          "BC",
                          false),
              "\x02"
              "BC");
    // a count that a block has no room for is a single control byte
    EXPECT_EQ(InfraredBlocks().Next("\x09"
                                    "BC",
                                    false),
              std::string("\0BC", 3));
    EXPECT_EQ(InfraredBlocks().Next("\x02"
                                    "BC",
                                    false),
              std::string(1, '\0'));
}

TEST(InstrumentAddress, Forms) {
    EXPECT_FALSE(ParseInstrumentAddress("irda")->Simulated);
    const auto simulated = ParseInstrumentAddress("tcp:[::1]:4711");
    ASSERT_TRUE(simulated && simulated->Simulated);
    EXPECT_EQ(simulated->Simulated->Host, "::1");
    EXPECT_EQ(simulated->Simulated->Port, 4711);
    for (const char* text : {"", "IRDA", "irda ", "tcp", "tcp:", "tcp:host", "tcp:host:", "tcp::1",
                             "tcp:host:0", "tcp:host:65536", "tcp:host:x", "rapi"}) {
        EXPECT_FALSE(ParseInstrumentAddress(text)) << text;
    }
}

// A socket and the other side of its link, which a test plays by hand.
class TcpInfrared : public testing::Test {
  protected:
    static constexpr int kClosed = 1001;
    static constexpr int kBadFrame = 1002;

    TcpInfrared() {
        auto listening = network_.Listen({"127.0.0.1", 0});
        listener_ = std::move(listening.Value());
        TcpInfraredSockets sockets(network_, {"127.0.0.1", listener_->Port()},
                                   {kClosed, kBadFrame});
        socket_ = std::move(sockets.Open().Value());
    }

    // Calls until it is done; the other side answers each call's question by `answer`.
    Status ListDevices(const std::string& answer) {
        return Ask([this] { return socket_->ListDevices(devices_); }, answer);
    }
    Status Connect(const std::string& answer) {
        return Ask([this] { return socket_->Connect(address_); }, answer);
    }
    Status Ask(const std::function<Result<bool>()>& operation, const std::string& answer) {
        asked_.clear();
        for (int i = 0; i < 100; ++i) {
            const auto done = operation();
            if (!done.Ok()) return done.Why();
            if (done.Value()) return {};
            if (!peer_) peer_ = std::move(listener_->Accept(kLongestTcpWait).Value());
            if (!peer_ || !asked_.empty()) continue;
            asked_ = peer_->Receive(1000, kLongestTcpWait).Value().Bytes;
            if (asked_.empty()) continue;
            if (answer == "close") {
                EXPECT_TRUE(peer_->Close().Ok());
            } else {
                EXPECT_EQ(peer_->Send(answer, kLongestTcpWait).Value(), answer.size());
            }
        }
        return Error{-1, "never done"};
    }
    // The next block that is not empty.
    Result<ReceivedBlock> Receive() {
        for (int i = 0; i < 100; ++i) {
            auto received = socket_->Receive();
            if (!received.Ok() || received.Value().Closed || !received.Value().Bytes.empty()) {
                return received;
            }
        }
        return Error{-1, "nothing came"};
    }

    NativeSystem system_;
    Tcp& network_ = system_.Network();
    std::unique_ptr<TcpListener> listener_;
    std::unique_ptr<TcpStream> peer_;
    std::unique_ptr<InfraredSocket> socket_;
    InfraredDeviceList devices_{};
    InfraredAddress address_{};
    std::string asked_;
};

TEST_F(TcpInfrared, CarriesASession) {
    ASSERT_TRUE(ListDevices(EncodeFrame(FrameType::kDevices, std::string(400, 'd'))).Ok());
    EXPECT_EQ(asked_, EncodeFrame(FrameType::kDevices, ""));
    EXPECT_EQ(std::string(devices_.data(), devices_.size()), std::string(300, 'd'));
    address_[0] = 26;
    // data that come together with the answer are not lost
    ASSERT_TRUE(Connect(EncodeFrame(FrameType::kConnect, "") +
                        EncodeFrame(FrameType::kData, std::string("\x01z"
                                                                  "A",
                                                                  3)))
                    .Ok());
    EXPECT_EQ(asked_, EncodeFrame(FrameType::kConnect, {address_.data(), address_.size()}));
    EXPECT_EQ(Receive().Value().Bytes, std::string("\0A", 2));
    EXPECT_TRUE(socket_->Writable());
    EXPECT_EQ(socket_->Send("bytes").Value(), 5U);
    EXPECT_EQ(peer_->Receive(100, kLongestTcpWait).Value().Bytes,
              EncodeFrame(FrameType::kData, "bytes"));
    EXPECT_TRUE(socket_->Receive().Value().Bytes.empty());
    EXPECT_TRUE(peer_->Close().Ok());
    EXPECT_TRUE(Receive().Value().Closed);
}

TEST_F(TcpInfrared, FaultsOfTheOtherSide) {
    const std::string devices = EncodeFrame(FrameType::kDevices, "\1");
    // the answer to connecting; the number of the error
    const std::pair<std::string, int> cases[] = {
        {EncodeFrame(FrameType::kConnect, std::string("\0\0\0\x6F", 4)), 111},
        {EncodeFrame(FrameType::kConnect, "\1"), kBadFrame},
        {EncodeFrame(FrameType::kData, "x"), kBadFrame},
        {"what", kBadFrame},
        {"close", kClosed}};
    for (const auto& [answer, number] : cases) {
        TcpInfraredSockets sockets(network_, {"127.0.0.1", listener_->Port()},
                                   {kClosed, kBadFrame});
        socket_ = std::move(sockets.Open().Value());
        peer_.reset();
        ASSERT_TRUE(ListDevices(devices).Ok());
        const Status connected = Connect(answer);
        ASSERT_FALSE(connected.Ok());
        EXPECT_EQ(connected.Why().Number, number);
    }
}

TEST_F(TcpInfrared, NobodyThereIsNobodyInRange) {
    devices_[0] = 9;
    EXPECT_TRUE(ListDevices("close").Ok());
    EXPECT_EQ(devices_[0], 0);
    TcpInfraredSockets nowhere(network_, {"127.0.0.1", 1}, {kClosed, kBadFrame});
    socket_ = std::move(nowhere.Open().Value());
    devices_[0] = 9;
    EXPECT_TRUE(ListDevices("").Ok());
    EXPECT_EQ(devices_[0], 0);
}

}  // namespace
}  // namespace brask
