#include <map>

#include "ProgramRunner.h"

namespace brask {
namespace {

class BraskSettings : public ProgramTest {
  protected:
    std::string Value(const std::string& key) const { return Run({"settings", "get", key}).Out; }
};

TEST_F(BraskSettings, ValuesComeBackFromTheUsersOwnStore) {
    EXPECT_EQ(Value("UpperToleranceLimit"), "1000\n");
    EXPECT_EQ(Listing(), "");
    EXPECT_EQ(Run({"settings", "set", "UpperToleranceLimit", " -5.5 "}).Out, "");
    EXPECT_EQ(Run({"settings", "set", "PlotLineColor2", "&h00FF00"}).Status, 0);
    EXPECT_EQ(Run({"settings", "set", "InstrumentAddress", "tcp:localhost:1"}).Status, 0);
    EXPECT_EQ(Value("UpperToleranceLimit"), "-5.5\n");
    EXPECT_EQ(Read("config/VEK/Brask Lite.ini"),
              "[Brask Lite]\nUpperToleranceLimit=-5.5\nPlotLineColor2=&h00FF00\n"
              "[Window]\nInstrumentAddress=tcp:localhost:1\n");

    const std::string other = At("other.ini");
    EXPECT_EQ(Run({"--settings", other, "settings", "set", "GraphType", "1"}).Status, 0);
    EXPECT_EQ(Value("GraphType"), "0\n");
    EXPECT_EQ(Run({"settings", "get", "GraphType", "--settings=" + other}).Out, "1\n");
}

TEST_F(BraskSettings, ListShowsEveryKeyWithItsColours) {
    Run({"settings", "set", "NumPlotColorsDefined", "2"});
    const auto document = Json({"settings", "list"});
    EXPECT_EQ(KeysOf(document), "settings messages");
    std::map<std::string, std::size_t> places;
    for (const auto& row : document["settings"].GetArray()) {
        EXPECT_EQ(KeysOf(row), "key value default form meaning");
        places.emplace(row["key"].GetString(), places.size());
    }
    EXPECT_EQ(places.count("PlotLineColor3"), 0U);
    EXPECT_EQ(places.at("PlotLineColor2"), places.at("NumPlotColorsDefined") + 2);
    EXPECT_GT(places.at("InstrumentAddress"), places.at("WarnedVers"));
    EXPECT_EQ(places.size(), document["settings"].Size());

    const auto one = Json({"settings", "set", "GraphType", "2"});
    ASSERT_EQ(one["settings"].Size(), 1U);
    EXPECT_STREQ(one["settings"][0]["value"].GetString(), "2");
    EXPECT_STREQ(one["settings"][0]["default"].GetString(), "0");
    EXPECT_STREQ(one["settings"][0]["form"].GetString(), "Index");
}

TEST_F(BraskSettings, StoredChoicesCountAndOptionsAreNotStored) {
    const std::string file = Write("a.csv", DataLine("JAN-01-2003 00:05:12", "0.1", "100"));
    Run({"settings", "set", "DisplayTemperatureUnits", "1"});
    Run({"settings", "set", "GraphType", "1"});
    const std::string stored = Read("config/VEK/Brask Lite.ini");
    EXPECT_EQ(Json({"info", file})["temperature_max"].GetDouble(), 212.0);
    EXPECT_EQ(Json({"info", file, "--celsius"})["temperature_max"].GetDouble(), 100.0);
    EXPECT_STREQ(Json({"curves", file})["curves"][0]["name"].GetString(), "01-Jan-2003");
    const auto options = Json({"curves", file, "--layout", "continuous", "--no-data-points",
                               "--date-order", "ymd", "--root", At("root")});
    EXPECT_STREQ(options["curves"][0]["name"].GetString(), "Gas");
    EXPECT_EQ(Read("config/VEK/Brask Lite.ini"), stored);
}

TEST_F(BraskSettings, RefusalsAndFailuresSayWhy) {
    for (const char* key : {"Nonsense", "graphtype", "PlotLineColor0", ""}) {
        for (const std::vector<std::string>& words :
             {std::vector<std::string>{"settings", "get", key}, {"settings", "set", key, "1"}}) {
            const auto refused = Json(words, 1);
            EXPECT_TRUE(refused["settings"].Empty()) << key;
            EXPECT_EQ(MessagesOf(refused), std::vector{"There is no setting " + std::string(key)});
        }
    }
    EXPECT_EQ(Listing(), "");
    const auto failed =
        Json({"settings", "set", "GraphType", "1", "--settings", "/dev/null/x.ini"}, 1);
    ASSERT_EQ(MessagesOf(failed).size(), 1U);
    EXPECT_EQ(MessagesOf(failed)[0].rfind("The setting GraphType could not be saved: ", 0), 0U);
}

TEST_F(BraskSettings, ADamagedFileIsSetAsideAndReported) {
    const std::string damaged = "[Brask Lite]\nGraphType=1\nno setting\n";
    const std::string file = Write("s.ini", damaged);
    const Finished finished = Run({"settings", "get", "GraphType", "--settings", file});
    EXPECT_EQ(finished.Status, 0);
    EXPECT_EQ(finished.Out, "0\n");
    EXPECT_NE(finished.Error.find(file + ".bad"), std::string::npos) << finished.Error;
    EXPECT_EQ(Read("s.ini.bad"), damaged);
    EXPECT_NE(Read("state/VEK/VEKLog.Txt").find(file + ".bad"), std::string::npos);
    // what is no file at all is left where it is
    const Finished folder = Run({"settings", "get", "GraphType", "--settings", At("state")});
    EXPECT_EQ(folder.Out, "0\n");
    EXPECT_EQ(folder.Error, "Cannot read " + At("state") + ": Is a directory\n");
}

}  // namespace
}  // namespace brask
