#include <gtest/gtest.h>

#include "platform/NativeSystem.h"

namespace brask {
namespace {

// Calls `attempt` until it has something to say; each call waits a little by itself.
template <class Attempt>
auto Patiently(Attempt attempt) {
    auto result = attempt();
    for (int tries = 0; !result && tries < 200; ++tries) result = attempt();
    return result;
}

// A listener on a free loopback port and one connection to it.
class NativeTcp : public testing::Test {
  protected:
    void Connect(const std::string& host) {
        near_ = std::move(tcp_.Connect({host, listener_->Port()}).Value());
        EXPECT_TRUE(Patiently([&] { return near_->Connected(kLongestTcpWait).Value(); }));
        far_ = Patiently([&] { return std::move(listener_->Accept(kLongestTcpWait).Value()); });
        ASSERT_NE(far_, nullptr);
    }

    NativeSystem system_;
    Tcp& tcp_ = system_.Network();
    std::unique_ptr<TcpListener> listener_ = std::move(tcp_.Listen({"127.0.0.1", 0}).Value());
    std::unique_ptr<TcpStream> near_;
    std::unique_ptr<TcpStream> far_;
};

TEST(TcpAddresses, AreReadAndWrittenAlike) {
    for (const char* text : {"localhost:4711", "127.0.0.1:0", "[::1]:65535", "a.b-c.d:1"}) {
        const auto address = ParseTcpAddress(text);
        ASSERT_TRUE(address) << text;
        EXPECT_EQ(TcpAddressText(*address), text);
    }
    EXPECT_EQ(ParseTcpAddress("[::1]:7")->Host, "::1");
    for (const char* text : {"", ":", "host", "host:", ":1", "host:65536", "host:-1", "host:+1",
                             "host:1x", "host: 1", "::1:7", "[]:1"}) {
        EXPECT_FALSE(ParseTcpAddress(text)) << text;
    }
}

TEST_F(NativeTcp, BytesArriveWholeAndInOrderThroughABufferThatFills) {
    Connect("127.0.0.1");
    std::string sent;
    while (near_->Writable() && sent.size() < 100'000'000) {
        std::string block(60'000, '\0');
        for (char& c : block) c = static_cast<char>(&c - block.data() + sent.size() / 7);
        const auto taken = near_->Send(block, 0);
        ASSERT_TRUE(taken.Ok());
        sent += block.substr(0, taken.Value());
    }
    EXPECT_EQ(near_->Send("x", 0).Value(), 0U);
    std::string received;
    while (received.size() < sent.size()) {
        const auto got = far_->Receive(70'000, kLongestTcpWait);
        ASSERT_TRUE(got.Ok() && !got.Value().Closed);
        received += got.Value().Bytes;
    }
    EXPECT_TRUE(received == sent);
    EXPECT_TRUE(near_->Writable());
}

TEST_F(NativeTcp, ClosingIsSeenAfterTheLastByteAndSendingThenFailsWithoutASignal) {
    Connect("localhost");
    EXPECT_FALSE(far_->Receive(10, 0).Value().Closed);
    ASSERT_EQ(near_->Send("bye", kLongestTcpWait).Value(), 3U);
    ASSERT_TRUE(near_->Close().Ok());
    EXPECT_EQ(near_->Send("x", 0).Value(), 0U);
    std::string received;
    bool closed = false;
    Patiently([&] {
        const auto got = far_->Receive(2, kLongestTcpWait);
        received += got.Value().Bytes;
        return closed = got.Value().Closed;
    });
    EXPECT_EQ(received, "bye");
    ASSERT_TRUE(closed);
    const int error = Patiently([&] {
        const auto sent = far_->Send("x", kLongestTcpWait);
        return sent.Ok() ? 0 : sent.Why().Number;
    });
    EXPECT_NE(error, 0);
}

TEST_F(NativeTcp, WhatCannotWorkSaysWhy) {
    const std::uint16_t port = listener_->Port();
    EXPECT_FALSE(tcp_.Listen({"127.0.0.1", port}).Why().Reason.empty());
    EXPECT_FALSE(tcp_.Connect({"no such host", 1}).Ok());
    EXPECT_EQ(listener_->Accept(0).Value(), nullptr);
    listener_.reset();
    auto stream = std::move(tcp_.Connect({"127.0.0.1", port}).Value());
    const int error = Patiently([&] {
        const auto connected = stream->Connected(kLongestTcpWait);
        return connected.Ok() ? 0 : connected.Why().Number;
    });
    EXPECT_GT(error, 0);
    EXPECT_EQ(stream->Connected(0).Why().Number, error);
}

}  // namespace
}  // namespace brask
