#include <set>

#include "ProgramRunner.h"

namespace brask {
namespace {

// Every case names its own file: the user's own store is tested for each system by itself.
class BraskSettings : public ProgramTest {
  protected:
    Finished With(std::vector<std::string> words) const {
        words.insert(words.end(), {"--settings", At("s.ini")});
        return Run(words);
    }
    rapidjson::Document JsonWith(std::vector<std::string> words, int expectedStatus = 0) const {
        words.insert(words.end(), {"--settings", At("s.ini")});
        return Json(words, expectedStatus);
    }
};

TEST_F(BraskSettings, ValuesComeBackFromTheFileThatIsNamed) {
    EXPECT_EQ(With({"settings", "get", "UpperToleranceLimit"}).Out, "1000\n");
    EXPECT_EQ(Listing(), "");
    EXPECT_EQ(With({"settings", "set", "UpperToleranceLimit", " -5.5 "}).Out, "");
    With({"settings", "set", "InstrumentAddress", "tcp:localhost:1"});
    EXPECT_EQ(
        Read("s.ini"),
        "[Brask Lite]\nUpperToleranceLimit=-5.5\n[Window]\nInstrumentAddress=tcp:localhost:1\n");
    EXPECT_EQ(With({"settings", "get", "UpperToleranceLimit"}).Out, "-5.5\n");
}

TEST_F(BraskSettings, ListShowsEveryKeyWithItsColours) {
    With({"settings", "set", "NumPlotColorsDefined", "2"});
    const auto document = JsonWith({"settings", "list"});
    EXPECT_EQ(KeysOf(document), "settings messages");
    std::set<std::string> keys;
    for (const auto& row : document["settings"].GetArray()) {
        EXPECT_EQ(KeysOf(row), "key value default form meaning");
        EXPECT_TRUE(keys.insert(row["key"].GetString()).second);
    }
    EXPECT_TRUE(keys.contains("PlotLineColor2") && keys.contains("InstrumentAddress"));
    EXPECT_FALSE(keys.contains("PlotLineColor3"));
    const auto one = JsonWith({"settings", "set", "GraphType", "2"});
    EXPECT_STREQ(one["settings"][0]["value"].GetString(), "2");
}

TEST_F(BraskSettings, StoredChoicesCountAndOptionsAreNotStored) {
    const std::string file = Write("a.csv", DataLine("JAN-01-2003 00:05:12", "0.1", "100"));
    const std::string stored = "[Brask Lite]\nDisplayTemperatureUnits=1\nGraphType=1\n";
    Write("s.ini", stored);
    EXPECT_EQ(JsonWith({"info", file})["temperature_max"].GetDouble(), 212.0);
    EXPECT_EQ(JsonWith({"info", file, "--celsius"})["temperature_max"].GetDouble(), 100.0);
    EXPECT_STREQ(JsonWith({"curves", file})["curves"][0]["name"].GetString(), "01-Jan-2003");
    const auto options = JsonWith({"curves", file, "--layout", "continuous", "--no-data-points",
                                   "--date-order", "ymd", "--root", At("root")});
    EXPECT_STREQ(options["curves"][0]["name"].GetString(), "Gas");
    EXPECT_EQ(Read("s.ini"), stored);
}

TEST_F(BraskSettings, RefusalsAndFailuresSayWhy) {
    for (const std::string key : {"graphtype", "PlotLineColor0", ""}) {
        JsonWith({"settings", "get", key}, 1);
        const auto refused = JsonWith({"settings", "set", key, "1"}, 1);
        EXPECT_TRUE(refused["settings"].Empty()) << key;
        EXPECT_EQ(MessagesOf(refused), std::vector{"There is no setting " + key});
    }
    EXPECT_EQ(Listing(), "");
    // a file stands where the directory would have to be
    const std::string below = Write("file", "") + "/x.ini";
    const auto failed = Json({"settings", "set", "GraphType", "1", "--settings", below}, 1);
    EXPECT_EQ(MessagesOf(failed).at(0).rfind("The setting GraphType could not be saved to ", 0),
              0U);
}

}  // namespace
}  // namespace brask
