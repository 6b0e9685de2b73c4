#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "platform/simulated/InfraredFrames.h"

namespace brask {
namespace {

using namespace std::string_literals;

struct Decoded {
    std::vector<std::string> Frames;  // the type's letter, then the payload
    bool Failed = false;
    bool Partial = false;
};

Decoded Decode(const std::vector<std::string>& pieces) {
    InfraredFrameDecoder decoder;
    Decoded decoded;
    for (const std::string& piece : pieces) {
        decoder.Append(piece);
        for (;;) {
            const auto next = decoder.Next();
            decoded.Failed = decoded.Failed || !next.Ok();
            if (!next.Ok() || !next.Value()) break;
            decoded.Frames.push_back(static_cast<char>(next.Value()->Type) + next.Value()->Payload);
        }
    }
    decoded.Partial = decoder.Partial();
    return decoded;
}

TEST(InfraredFrames, AStreamMeansTheSameWhereverItIsCut) {
    const std::string longest(kMaxFramePayload, '\xFF');
    const std::string stream =
        EncodeFrame(FrameType::kDevices, "") + EncodeFrame(FrameType::kData, "\0D\0\3abc"s) +
        EncodeFrame(FrameType::kData, "") + EncodeFrame(FrameType::kConnect, "\0\0\0\x6F"s) +
        EncodeFrame(FrameType::kData, std::string(256, 'x'));
    const std::vector<std::string> frames{"E", "D\0D\0\3abc"s, "C\0\0\0\x6F"s,
                                          "D" + std::string(256, 'x')};
    for (std::size_t cut = 0; cut <= stream.size(); ++cut) {
        const Decoded decoded = Decode({stream.substr(0, cut), stream.substr(cut)});
        EXPECT_EQ(decoded.Frames, frames) << cut;
        EXPECT_FALSE(decoded.Failed || decoded.Partial) << cut;
    }
    std::vector<std::string> bytes;
    for (const char c : stream + EncodeFrame(FrameType::kData, longest)) bytes.emplace_back(1, c);
    const Decoded single = Decode(bytes);
    ASSERT_EQ(single.Frames.size(), frames.size() + 1);
    EXPECT_EQ(single.Frames.back(), "D" + longest);
}

TEST(InfraredFrames, WhatIsNoFrameIsAnErrorThatStays) {
    // the bytes; whether they fail, whether a frame is yet to end
    const std::tuple<std::string, bool, bool> cases[] = {
        {"d", true, true},          // its type is the first thing wrong
        {"D\x20\x01", true, true},  // 8193
        {"D\x20", false, true},     // may still become 8192
        {"D\0\2a"s, false, true},
        {"D\0\0"s, false, false},
        {EncodeFrame(FrameType::kData, "x") + "?", true, true}};
    for (const auto& [bytes, failed, partial] : cases) {
        const Decoded decoded = Decode({bytes, !failed ? "" : "D\0\1x"s});
        EXPECT_EQ(decoded.Failed, failed) << testing::PrintToString(bytes);
        EXPECT_EQ(decoded.Partial, partial) << testing::PrintToString(bytes);
        EXPECT_EQ(decoded.Frames.size(), bytes.size() == 5 ? 1U : 0U) << bytes;
    }
}

}  // namespace
}  // namespace brask
