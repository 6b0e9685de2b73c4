#include <set>

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
    Run({"settings", "set", "InstrumentAddress", "tcp:localhost:1"});
    EXPECT_EQ(
        Read("config/VEK/Brask Lite.ini"),
        "[Brask Lite]\nUpperToleranceLimit=-5.5\n[Window]\nInstrumentAddress=tcp:localhost:1\n");

    const std::string other = At("other.ini");
    Run({"--settings", other, "settings", "set", "GraphType", "1"});
    EXPECT_EQ(Value("GraphType"), "0\n");
    EXPECT_EQ(Run({"settings", "get", "GraphType", "--settings=" + other}).Out, "1\n");
}

TEST_F(BraskSettings, ListShowsEveryKeyWithItsColours) {
    Run({"settings", "set", "NumPlotColorsDefined", "2"});
    const auto document = Json({"settings", "list"});
    EXPECT_EQ(KeysOf(document), "settings messages");
    std::set<std::string> keys;
    for (const auto& row : document["settings"].GetArray()) {
        EXPECT_EQ(KeysOf(row), "key value default form meaning");
        EXPECT_TRUE(keys.insert(row["key"].GetString()).second);
    }
    EXPECT_TRUE(keys.contains("PlotLineColor2") && keys.contains("InstrumentAddress"));
    EXPECT_FALSE(keys.contains("PlotLineColor3"));
    const auto one = Json({"settings", "set", "GraphType", "2"});
    EXPECT_STREQ(one["settings"][0]["value"].GetString(), "2");
}

TEST_F(BraskSettings, StoredChoicesCountAndOptionsAreNotStored) {
    const std::string file = Write("a.csv", DataLine("JAN-01-2003 00:05:12", "0.1", "100"));
    const std::string stored = "[Brask Lite]\nDisplayTemperatureUnits=1\nGraphType=1\n";
    Write("config/VEK/Brask Lite.ini", stored);
    EXPECT_EQ(Json({"info", file})["temperature_max"].GetDouble(), 212.0);
    EXPECT_EQ(Json({"info", file, "--celsius"})["temperature_max"].GetDouble(), 100.0);
    EXPECT_STREQ(Json({"curves", file})["curves"][0]["name"].GetString(), "01-Jan-2003");
    const auto options = Json({"curves", file, "--layout", "continuous", "--no-data-points",
                               "--date-order", "ymd", "--root", At("root")});
    EXPECT_STREQ(options["curves"][0]["name"].GetString(), "Gas");
    EXPECT_EQ(Read("config/VEK/Brask Lite.ini"), stored);
}

TEST_F(BraskSettings, RefusalsAndFailuresSayWhy) {
    for (const std::string key : {"graphtype", "PlotLineColor0", ""}) {
        Json({"settings", "get", key}, 1);
        const auto refused = Json({"settings", "set", key, "1"}, 1);
        EXPECT_TRUE(refused["settings"].Empty()) << key;
        EXPECT_EQ(MessagesOf(refused), std::vector{"There is no setting " + key});
    }
    EXPECT_EQ(Listing(), "");
    const auto failed =
        Json({"settings", "set", "GraphType", "1", "--settings", "/dev/null/x.ini"}, 1);
    EXPECT_EQ(MessagesOf(failed).at(0).rfind("The setting GraphType could not be saved to ", 0),
              0U);
}

TEST_F(BraskSettings, ADamagedFileIsSetAsideAndReported) {
    const std::string damaged = "[Brask Lite]\nGraphType=1\nno setting\n";
    const std::string file = Write("s.ini", damaged);
    const Finished finished = Run({"settings", "get", "GraphType", "--settings", file});
    EXPECT_EQ(finished.Out, "0\n");
    EXPECT_NE(finished.Error.find(file + ".bad"), std::string::npos) << finished.Error;
    EXPECT_EQ(Read("s.ini.bad"), damaged);
    EXPECT_NE(Read("state/VEK/VEKLog.Txt").find(file + ".bad"), std::string::npos);
}

}  // namespace
}  // namespace brask
