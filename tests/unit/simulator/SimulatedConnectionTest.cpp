#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

#include "link/SimulatedConnection.h"
#include "link/StreamEncoder.h"
#include "platform/simulated/ManualClock.h"

namespace brask {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kLine = "JAN-01-2003 00:05:12,    0.1,  26.1\r\n";
const std::string kHead = "INSTRUMENT: K\r\n";
const std::string kEnd = "END DATA:      3\r\n";
const std::string kFile = kHead + kLine + kLine + kLine + kEnd;
const std::string kStream = kHead + kLine + "\xA5\xA5" + kEnd;
const std::string kAddress = "\x1A\0KB42IrDA:IrCOMM"s + std::string(14, '\0');

// A connection whose frames are taken apart again.
class Link {
  public:
    explicit Link(InstrumentBehaviour behaviour, const std::string& file = kFile)
        : instrument_(
              std::move(SimulatedInstrument::Create(file, std::move(behaviour), texts_).Value())),
          connection_({instrument_, clock_, texts_,
                       [this](const std::string& line) { Notes.push_back(line); }}) {}

    // The payloads, behind their types, that answer a frame without any time passing.
    std::vector<std::string> Answers(FrameType type, const std::string& payload) {
        EXPECT_TRUE(connection_.Take({type, payload}).Ok());
        return Due();
    }
    std::vector<std::string> Due() {
        while (const auto frame = connection_.NextFrame()) decoder_.Append(*frame);
        std::vector<std::string> frames;
        for (;;) {
            const auto frame = decoder_.Next();
            EXPECT_TRUE(frame.Ok());
            if (!frame.Value()) return frames;
            frames.push_back(static_cast<char>(frame.Value()->Type) + frame.Value()->Payload);
        }
    }
    // Connects and asks for the readings.
    std::vector<std::string> Download() {
        Answers(FrameType::kConnect, kAddress);
        return Answers(FrameType::kData, "\0[OUTPUT JAN-05-2004 13:07:42"s);
    }
    SimulatedConnection* operator->() { return &connection_; }

    ManualClock clock_;
    std::vector<std::string> Notes;

  private:
    EnglishTexts texts_;
    SimulatedInstrument instrument_;
    SimulatedConnection connection_;
    InfraredFrameDecoder decoder_;
};

// The stream that data frames carry, their control bytes taken off.
std::string StreamOf(const std::vector<std::string>& frames) {
    return std::accumulate(frames.begin(), frames.end(), ""s,
                           [](const std::string& stream, const std::string& frame) {
                               EXPECT_EQ(frame.substr(0, 2), "D\0"s);
                               return stream + frame.substr(2);
                           });
}

TEST(SimulatedConnection, FaultsOfTheStream) {
    std::string filled = kStream;
    filled.insert(64, 1, '\0').insert(32, 1, '\0');
    std::string corrupt = kStream;
    corrupt[16] = '@';
    const std::string dropped = kHead + kLine + "\xA5" + kEnd;
    const std::string counted = kHead + kLine + "\xA5\xA5" + "END DATA:12345678\r\n";
    // the behaviour, the stream, the last note
    const std::tuple<InstrumentBehaviour, std::string, std::string> cases[] = {
        {{}, kStream, "sent 72 bytes"},
        {{.Corrupt = 16}, corrupt, "sent 72 bytes"},
        {{.DropLine = 3}, dropped, "sent 71 bytes"},
        {{.Count = 12345678}, counted, "sent 73 bytes"},
        {{.Filler = 32}, filled, "sent 74 bytes"},
        {{.CutAfter = 20}, kStream.substr(0, 20), "link cut after 20 bytes"},
        {{.CutAfter = 73}, kStream, "sent 72 bytes"},
        {{.SilentAfter = 7}, kStream.substr(0, 7), "silent after 7 bytes"},
    };
    for (const auto& [behaviour, stream, note] : cases) {
        Link link(behaviour);
        EXPECT_EQ(StreamOf(link.Download()), stream) << note;
        EXPECT_EQ(link->HangsUp(), note.starts_with("link cut")) << note;
        EXPECT_EQ(link.Notes.back(), note);
    }
}

TEST(SimulatedConnection, EveryBlockSizeAndEveryJoinCarryTheSameStream) {
    std::string file = kHead;
    for (int i = 0; i < 100; ++i) file += std::to_string(i * 7919) + " " + kLine;
    file += "END DATA:    100\r\n";
    Link plain({}, file);
    const std::string stream = StreamOf(plain.Download());
    for (std::size_t block = 1; block <= 100; ++block) {
        for (const std::int64_t merge : {1, 3, 100000}) {
            Link link({.BlockSize = block, .Merge = merge}, file);
            std::string joined;
            for (const std::string& frame : link.Download()) {
                // every block begins with its control byte, also within a frame
                for (std::size_t at = 1; at < frame.size(); at += block + 1) {
                    ASSERT_EQ(frame[at], '\0');
                    joined += frame.substr(at + 1, block);
                }
            }
            ASSERT_EQ(joined, stream) << block << " " << merge;
        }
    }
}

TEST(SimulatedConnection, TheDeviceListIsWrittenAsSystemsWriteIt) {
    // how many, the first one's name, what the list ends with
    const std::tuple<int, std::string, std::string> cases[] = {
        {0, "", "\0\0\0\0"s},
        {1, "VEK TK42", "VEK TK42" + std::string(18, '\0')},
        {255, std::string(22, 'n'), "DEVICE 255" + std::string(16, '\0')}};
    for (const auto& [devices, name, end] : cases) {
        Link link({.Name = name, .Devices = devices});
        const std::string list = link.Answers(FrameType::kDevices, "").at(0).substr(1);
        EXPECT_EQ(list.size(), 4 + 30U * static_cast<unsigned>(devices));
        EXPECT_TRUE(list.starts_with(static_cast<char>(devices) + "\0\0\0"s));
        EXPECT_TRUE(list.ends_with(end)) << devices;
        EXPECT_TRUE(devices == 0 || list.substr(8, name.size() + 1) == name + '\0');
    }
}

TEST(SimulatedConnection, ConnectingAndCommandsThatMakeNoSense) {
    Link link({});
    EXPECT_THAT(link.Answers(FrameType::kData, "\0[OUTPUT x"s), IsEmpty());
    EXPECT_EQ(link.Notes.back(), "command [OUTPUT x (not connected, no answer)");
    EXPECT_THAT(link.Answers(FrameType::kConnect, kAddress), ElementsAre("C"));
    EXPECT_EQ(link.Notes.back(), "connected to IrDA:IrCOMM of device 4B423432");
    EXPECT_TRUE(link->IsSession());
    for (const std::string& command : {"\0[output x"s, "\0"s, "\0[OUTPUT"s, "[CLEAR]"s}) {
        EXPECT_THAT(link.Answers(FrameType::kData, command), IsEmpty()) << command;
    }
    EXPECT_FALSE(link->Take({FrameType::kConnect, kAddress.substr(1)}).Ok());

    Link refusing({.Refuse = 0xFEDCBA98});
    EXPECT_THAT(refusing.Download(), IsEmpty());
    EXPECT_THAT(refusing.Answers(FrameType::kConnect, kAddress), ElementsAre("C\xFE\xDC\xBA\x98"));
}

TEST(SimulatedConnection, ClearingEmptiesItOnlyWhenTheAnswerSaysSo) {
    const std::string empty = kHead + "END DATA:      0\r\n";
    // the answer, the frames that it comes in, the stream after it
    using Case = std::tuple<std::optional<std::string>, std::vector<std::string>, std::string>;
    const Case cases[] = {{"[OK]", {"D\0[OK]"s}, empty},
                          {"[ok]", {"D\0[ok]"s}, kStream},
                          {std::nullopt, {}, kStream}};
    for (const auto& [answer, frames, after] : cases) {
        Link link({.ClearAnswer = answer});
        link.Download();
        EXPECT_EQ(link.Answers(FrameType::kData, "\0[CLEAR]"s), frames);
        EXPECT_EQ(StreamOf(link.Download()), after);
    }
    Link silent({.SilentAfter = 3});
    silent.Download();
    EXPECT_THAT(silent.Answers(FrameType::kData, "\0[CLEAR]"s), IsEmpty());
}

TEST(SimulatedConnection, PausesByTheClock) {
    Link link({.BlockSize = 30, .DelayMilliseconds = 40});
    EXPECT_EQ(link.Download().size(), 1U);
    EXPECT_EQ(link->NextDue(), 40);
    link.clock_.Milliseconds += 39;
    EXPECT_EQ(link->NextDue(), 1);
    EXPECT_THAT(link.Due(), IsEmpty());
    // answers do not wait for the stream's pauses
    EXPECT_EQ(link.Answers(FrameType::kDevices, "").size(), 1U);
    link.clock_.Milliseconds += 1;
    EXPECT_EQ(link.Due().size(), 1U);
    link.clock_.Milliseconds += 1000;
    EXPECT_EQ(StreamOf(link.Due()), kStream.substr(60));
    EXPECT_EQ(link->NextDue(), std::nullopt);
}

TEST(SimulatedInstrument, FaultsThatTheFileHasNoRoomForAreRefused) {
    const EnglishTexts texts;
    EXPECT_TRUE(SimulatedInstrument::Create(kFile, {.Corrupt = 71}, texts).Ok());
    // now the stream is one byte shorter
    EXPECT_EQ(
        SimulatedInstrument::Create(kFile, {.Corrupt = 71, .DropLine = 3}, texts).Why().Reason,
        "there is no byte 71 to corrupt; the stream has 71, counted from 0");
}

}  // namespace
}  // namespace brask
