#include <filesystem>
#include <tuple>

#include "ProgramRunner.h"
#include "RunningSimulator.h"
#include "platform/NativeSystem.h"

namespace brask {
namespace {

constexpr const char* kApril = BRASK_SAMPLES "/air-quality-april.csv";

class BraskDownload : public ProgramTest {
  protected:
    rapidjson::Document Download(const RunningSimulator& simulator,
                                 std::vector<std::string> options, int status) {
        options.insert(options.begin(), {"download", "--root", At("data"), "--instrument",
                                         simulator.Address(), "--timeout", "5"});
        return Json(options, status);
    }
};

TEST_F(BraskDownload, FilesClearsAndCanBeRepeatedFromTheRawStream) {
    const RunningSimulator simulator({});
    const auto done = Download(simulator, {"--clear"}, 0);
    EXPECT_EQ(KeysOf(done), "accepted file raw_file bytes cleared messages");
    EXPECT_TRUE(done["accepted"].GetBool());
    EXPECT_TRUE(done["cleared"].GetBool());
    const std::string file = done["file"].GetString();
    EXPECT_EQ(file.rfind(At("data/VEK/From TalvexK42/K42 "), 0), 0U) << file;
    EXPECT_EQ(Read(file), Read(kApril));
    EXPECT_EQ(MessagesOf(done), std::vector<std::string>{"Talvex© K42 Data Was Cleared"});
    const std::string raw = done["raw_file"].GetString();
    EXPECT_EQ(done["bytes"].GetInt64(), static_cast<std::int64_t>(Read(raw).size()));

    const auto verified = Json({"verify", raw, "--root", At("data")});
    EXPECT_EQ(KeysOf(verified), "accepted file counted expected messages");
    EXPECT_EQ(verified["counted"].GetInt64(), 468);
    EXPECT_EQ(verified["expected"].GetDouble(), 468);
    std::filesystem::remove(raw);

    const auto empty = Download(simulator, {}, 1);
    EXPECT_FALSE(empty["accepted"].GetBool());
    EXPECT_EQ(MessagesOf(empty), std::vector<std::string>{"Talvex© K42 Instrument did not have "
                                                          "any data in it to download!"});
    std::filesystem::remove(empty["raw_file"].GetString());
}

TEST_F(BraskDownload, FaultsOfTheLink) {
    // the simulator's options; the exit status, a part of the last message ("" for none at all), or
    // of the log
    using Case = std::tuple<std::vector<std::string>, int, std::string, std::string>;
    const std::string refused = std::to_string(RefusedConnection());
    const std::string refusedText = NativeSystem().Information().ErrorText(RefusedConnection());
    const Case cases[] = {
        {{"--block", "8191", "--merge", "3", "--filler", "7"}, 0, "", "accepted with 468"},
        {{"--drop-line", "7"}, 1, "Received 467 lines\r\nExpected 468 Lines", ""},
        {{"--silent-after", "700"}, 1, "", "no END DATA: line"},
        {{"--cut-after", "0"}, 1, "", "closed before the first byte"},
        {{"--refuse", refused},
         1,
         "Error Description:" + refusedText + "\r\nError Number:" + refused + "\r\n[Connect]",
         ""},
        {{"--refuse", "4711"},
         1,
         "Socket Connect Error is Unknown\r\nError=4711\r\nConnect to K42 is aborted",
         ""},
        {{"--no-clear-answer"}, 0, "Clear Data Acknowledge Not Received!", ""},
        {{"--clear-answer", "[NO]"}, 0, "Talvex© K42 did not clear data", ""}};
    for (const auto& [options, status, message, logged] : cases) {
        const RunningSimulator simulator(options);
        const bool clears = options[0].find("clear") != std::string::npos;
        const auto done = Download(simulator, {clears ? "--clear" : "--no-clear"}, status);
        const auto messages = MessagesOf(done);
        EXPECT_EQ(messages.empty(), message.empty()) << options[0];
        if (!messages.empty()) {
            EXPECT_NE(messages.back().find(message), std::string::npos) << messages.back();
        }
        EXPECT_NE(Log().find(logged), std::string::npos) << Log();
        EXPECT_FALSE(done["cleared"].GetBool());
        std::filesystem::remove(done["raw_file"].GetString());
    }
}

TEST_F(BraskDownload, AnInterruptEndsItInGoodOrder) {
    RunningSimulator simulator({"--file", kApril, "--block", "50", "--delay", "100"});
    const auto download = StartProgram(
        "brask", {"download", "--json", "--root", At("data"), "--instrument", simulator.Address()});
    ASSERT_TRUE(simulator.Tells("command [OUTPUT"));
    if (!download->Interrupt()) GTEST_SKIP() << "without a console nobody can press Ctrl+C";
    rapidjson::Document document;
    ASSERT_FALSE(document.Parse(download->ReadLine().c_str()).HasParseError());
    std::filesystem::remove(document["raw_file"].GetString());
    EXPECT_FALSE(document["accepted"].GetBool());
    EXPECT_EQ(download->ExitStatus(), 1);
}

TEST_F(BraskDownload, GivesUpOrIsNotStarted) {
    const auto with = [this](std::vector<std::string> words) {
        words.insert(words.begin(), {"download", "--root", At("data")});
        return words;
    };
    // nobody there, and another device than the instrument
    const RunningSimulator stranger({"--name", "PHONE"});
    for (const std::string& address : {std::string("tcp:127.0.0.1:1"), stranger.Address()}) {
        const auto waited = Json(with({"--instrument", address, "--timeout", "1"}), 1);
        EXPECT_EQ(MessagesOf(waited), std::vector{"No connection to the instrument (" + address +
                                                  ") within 1 seconds"});
        std::filesystem::remove(waited["raw_file"].GetString());
    }
    EXPECT_EQ(Run(with({"--instrument", "tcp:x"})).Status, 2);
    EXPECT_EQ(Run(with({"--clear", "--no-clear"})).Status, 2);
    ASSERT_EQ(Run({"settings", "set", "InstrumentAddress", "nowhere"}).Status, 0);
    EXPECT_TRUE(Json(with({}), 1)["raw_file"].IsNull());
    EXPECT_EQ(Json({"verify", At("missing"), "--root", At("data")}, 1)["messages"].Size(), 1U);
}

}  // namespace
}  // namespace brask
