#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

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
        : stream_(std::move(tcp_.Connect({"127.0.0.1", simulator.Port()}).Value())) {
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
    // Connects and receives all readings, as a raw stream.
    std::string Download() {
        EXPECT_EQ(Ask(FrameType::kConnect, kAddress), "");
        std::string raw = Ask(FrameType::kData, "\0[OUTPUT JAN-05-2004 13:07:42"s).substr(1);
        while (raw.find("END DATA:") == std::string::npos || raw.back() != '\n') {
            const std::string block = Next();
            if (block == "closed") break;
            raw += block.substr(1);
        }
        return raw;
    }

  private:
    NativeSystem system_;
    Tcp& tcp_ = system_.Network();
    std::unique_ptr<TcpStream> stream_;
    InfraredFrameDecoder decoder_;
};

class K42Sim : public ProgramTest {};

TEST_F(K42Sim, ADownloadGivesTheFileBackAndClearingLastsForTheNextConnection) {
    RunningSimulator simulator({"--file", kApril, "--block", "100", "--merge", "3"});
    ASSERT_NE(simulator.Port(), 0);
    {
        Client client(simulator);
        EXPECT_THAT(client.Ask(FrameType::kDevices, ""), HasSubstr("VEK TK42"));
        const std::string raw = Write("raw", client.Download());
        ASSERT_EQ(Run({"expand", raw, "-o", At("out")}).Status, 0);
        EXPECT_EQ(Read("out"), Read(kApril));
        EXPECT_EQ(client.Ask(FrameType::kData, "\0[CLEAR]"s), "\0[OK]"s);
        // a program that is just connected does not disturb the one that downloads
        Client second(simulator);
        EXPECT_THAT(second.Download(), HasSubstr("GAS: CO\r\nEND DATA:      0\r\n"));
    }
    EXPECT_TRUE(simulator.Tells("#1 command [OUTPUT JAN-05-2004 13:07:42"));
    EXPECT_TRUE(simulator.Tells("#1 command [CLEAR]"));
    EXPECT_TRUE(simulator.Tells("#2 closed"));
    if (!simulator.Interrupt()) GTEST_SKIP() << "without a console nobody can press Ctrl+C";
    EXPECT_TRUE(simulator.Tells("stopped"));
    EXPECT_EQ(simulator.ExitStatus(), 0);
}

TEST_F(K42Sim, OnceEndsWithTheSessionAndTellsHowItCameOut) {
    const struct {
        std::vector<std::string> Options;
        std::string AfterConnect;
        bool Closes;  // the simulator, that is
        int Status;
    } cases[] = {{{}, "", false, 0},
                 {{"--cut-after", "50"}, EncodeFrame(FrameType::kData, "\0[OUTPUT x"s), true, 0},
                 {{"--refuse", "111"}, "", false, 0},
                 {{}, "X", true, 1},
                 {{}, "D\0\5ab"s, false, 1}};
    for (const auto& [options, bytes, closes, status] : cases) {
        std::vector<std::string> all{"--file", kApril, "--once"};
        all.insert(all.end(), options.begin(), options.end());
        RunningSimulator simulator(all);
        ASSERT_NE(simulator.Port(), 0);
        // looking who is there is no session
        EXPECT_EQ(Client(simulator).Ask(FrameType::kDevices, "").size(), 34U);
        {
            Client client(simulator);
            client.Ask(FrameType::kConnect, kAddress);
            client.Send(bytes);
            while (closes && client.Next() != "closed") continue;
        }
        EXPECT_EQ(simulator.ExitStatus(), status) << bytes;
    }
}

TEST_F(K42Sim, WrongUsageIsOneLineAndStatusTwoAndAFailureOne) {
    const std::string there = "--listen 127.0.0.1:0 --file " + kApril;
    const std::string lost = Write("null.csv", "INSTRUMENT: K\r\n\0\r\n"s);
    const struct {
        std::string Words;
        int Status;
        std::string Reason;
    } cases[] = {
        {"", 2, "option --listen is missing: k42sim --listen HOST:PORT --file DATAFILE"},
        {"--listen 127.0.0.1 --file x", 2, "option --listen: \"127.0.0.1\" is no HOST:PORT"},
        {there + " --devices 256", 2, "option --devices: 256 is not from 0 to 255"},
        {there + " --filler 0", 2, "option --filler: 0 is less than 1"},
        {there + " more", 2,
         "\"more\" is one argument too many: k42sim --listen HOST:PORT --file DATAFILE "
         "[OPTION...]"},
        {there + " --drop-line 469", 1,
         "cannot play " + kApril + ": there is no data line 469 to drop; the file has 468"},
        {"--listen 127.0.0.1:0 --file " + lost, 1,
         "cannot play " + lost +
             ": line 2 holds a byte 0 or above 127, which the link cannot carry"},
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

TEST_F(K42Sim, HelpManualAndCompletionNameTheSameOptions) {
    ASSERT_EQ(RunToEnd("k42sim", {"--help"}, {At("help"), At("err")}), 0);
    const std::string manual = Read(BRASK_SHARE "/man/k42sim.1");
    const std::string completion = Read(BRASK_SHARE "/bash-completion/k42sim");
    int options = 0;
    std::istringstream help(Read("help"));
    for (std::string line; std::getline(help, line);) {
        if (line.rfind("  --", 0) != 0) continue;
        const std::string name = line.substr(4, line.find(' ', 4) - 4);
        EXPECT_THAT(manual, HasSubstr("Fl -" + name)) << name;
        EXPECT_THAT(completion, HasSubstr("--" + name)) << name;
        ++options;
    }
    EXPECT_EQ(options, 19);
}

}  // namespace
}  // namespace brask
