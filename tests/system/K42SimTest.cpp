#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

#include "ProgramRunner.h"
#include "RunningSimulator.h"
#include "platform/NativeSystem.h"
#include "platform/simulated/InfraredFrames.h"

namespace brask {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;

const std::string kApril = BRASK_SAMPLES "/air-quality-april.csv";
const std::string kAddress = "\x1A\0KB42IrDA:IrCOMM"s + std::string(14, '\0');

// A program's side of the link. Waits as long as the simulator lives.
class Client {
  public:
    explicit Client(const RunningSimulator& simulator)
        : stream_(std::move(tcp_.Connect({"127.0.0.1", simulator.Port}).Value())) {
        while (!stream_->Connected(kLongestTcpWait).Value()) continue;
    }
    void Send(const std::string& bytes) {
        EXPECT_EQ(stream_->Send(bytes, kLongestTcpWait).Value(), bytes.size());
    }
    // The payload of the next frame; "closed" at the end.
    std::string Next() {
        for (;;) {
            const auto frame = decoder_.Next();
            if (frame.Ok() && frame.Value()) return frame.Value()->Payload;
            const auto got = stream_->Receive(1000, kLongestTcpWait);
            if (!got.Ok() || got.Value().Closed) return "closed";
            decoder_.Append(got.Value().Bytes);
        }
    }
    std::string Ask(FrameType type, const std::string& payload) {
        Send(EncodeFrame(type, payload));
        return Next();
    }

  private:
    NativeSystem system_;
    Tcp& tcp_ = system_.Network();
    std::unique_ptr<TcpStream> stream_;
    InfraredFrameDecoder decoder_;
};

class K42Sim : public ProgramTest {};

TEST_F(K42Sim, ServesSeveralProgramsTellsWhatTheyAskAndStopsWhenInterrupted) {
    RunningSimulator simulator({"--block", "100", "--merge", "3"});
    {
        // a program that is just connected does not disturb the one that downloads
        Client client(simulator);
        EXPECT_THAT(client.Ask(FrameType::kDevices, ""), HasSubstr("VEK TK42"));
        const auto done = Json(
            {"download", "--clear", "--root", At("data"), "--instrument", simulator.Address()});
        EXPECT_TRUE(done["cleared"].GetBool());
    }
    EXPECT_TRUE(simulator.Tells("#2 command [OUTPUT "));
    EXPECT_TRUE(simulator.Tells("#2 command [CLEAR]"));
    EXPECT_TRUE(simulator.Tells("#1 closed"));
    if (!simulator.Process->Interrupt()) GTEST_SKIP() << "there is no console to press Ctrl+C";
    EXPECT_TRUE(simulator.Tells("stopped"));
    EXPECT_EQ(simulator.Process->ExitStatus(), 0);
}

TEST_F(K42Sim, OnceEndsWithTheSessionAndTellsHowItCameOut) {
    // the options, what is sent after connecting, whether the simulator closes, its exit status
    const std::tuple<std::vector<std::string>, std::string, bool, int> cases[] = {
        {{}, "", false, 0},
        {{"--cut-after", "50"}, EncodeFrame(FrameType::kData, "\0[OUTPUT x"s), true, 0},
        {{"--refuse", "111"}, "", false, 0},
        {{}, "X", true, 1},
        {{}, "D\0\5ab"s, false, 1}};
    for (auto [options, bytes, closes, status] : cases) {
        options.emplace_back("--once");
        RunningSimulator simulator(options);
        ASSERT_NE(simulator.Port, 0);
        // looking who is there is no session
        EXPECT_EQ(Client(simulator).Ask(FrameType::kDevices, "").size(), 34U);
        {
            Client client(simulator);
            client.Ask(FrameType::kConnect, kAddress);
            client.Send(bytes);
            while (closes && client.Next() != "closed") continue;
        }
        EXPECT_EQ(simulator.Process->ExitStatus(), status) << bytes;
    }
}

TEST_F(K42Sim, WrongUsageIsOneLineAndStatusTwoAndAFailureOne) {
    const std::string there = "--listen 127.0.0.1:0 --file " + kApril;
    // the words, the exit status, how the reason begins
    const std::tuple<std::string, int, std::string> cases[] = {
        {"", 2, "option --listen is missing: k42sim --listen HOST:PORT --file DATAFILE"},
        {"--listen 127.0.0.1 --file x", 2, "option --listen: \"127.0.0.1\" is no HOST:PORT"},
        {there + " --devices 256", 2, "option --devices: 256 is not from 0 to 255"},
        {there + " --filler 0", 2, "option --filler: 0 is less than 1"},
        {there + " --drop-line 469", 1,
         "cannot play " + kApril + ": there is no data line 469 to drop; the file has 468"},
        {"--listen 192.0.2.1:1 --file " + kApril, 1, "cannot listen on 192.0.2.1:1: "},
    };
    for (const auto& [words, status, reason] : cases) {
        std::vector<std::string> arguments;
        std::istringstream split(words);
        for (std::string word; split >> word;) arguments.push_back(word);
        EXPECT_EQ(RunToEnd("k42sim", arguments, {At("out"), At("err")}), status) << words;
        const std::string error = Read("err");
        EXPECT_EQ(error.rfind("k42sim: " + reason, 0), 0U) << error;
        EXPECT_EQ(error.find('\n'), error.size() - 1) << error;
        EXPECT_EQ(Read("out"), "");
    }
}

}  // namespace
}  // namespace brask
