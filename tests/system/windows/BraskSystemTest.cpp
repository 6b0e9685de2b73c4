// What the programs do with the places and names that only Windows has.
#include <windows.h>

#include "ProgramRunner.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

class BraskOnWindows : public ProgramTest {};

TEST_F(BraskOnWindows, TheUsersOwnStoreIsTheRegistryAndTheLogLiesWhereSupportLooks) {
    EXPECT_EQ(Run({"settings", "get", "GraphType"}).Out, "0\n");
    Run({"settings", "set", "GraphType", "2"});
    Run({"settings", "set", "InstrumentAddress", "tcp:localhost:1"});
    EXPECT_EQ(Run({"settings", "get", "GraphType"}).Out, "2\n");
    EXPECT_EQ(Run({"settings", "get", "GraphType", "--settings", At("other.ini")}).Out, "0\n");
    const std::string key = "Software\\VEK\\Brask Lite";
    EXPECT_EQ(windows::ReadRegistryText(HKEY_CURRENT_USER, key, "GraphType"), "2");
    EXPECT_EQ(windows::ReadRegistryText(HKEY_CURRENT_USER, key + " Window", "InstrumentAddress"),
              "tcp:localhost:1");
    EXPECT_EQ(Listing(), "");
    Run({"settings", "get", "GraphType", "--settings", Write("s.ini", "no setting\n")});
    EXPECT_NE(Log().find(At("s.ini")), std::string::npos);
}

TEST_F(BraskOnWindows, NamesOfEveryLanguageReachTheProgramAndTheDocument) {
    const std::string name = "Z\xC3\xBCrich \xE6\xB8\xAC \xF0\x9F\x98\x80.csv";
    const std::string file = Write(name, DataLine("JAN-01-2003 00:05:12", "0.1", "26.1"));
    EXPECT_STREQ(Json({"info", file})["file"].GetString(), file.c_str());
    EXPECT_EQ(Json({"info", At("sub/../" + name)})["readings"].GetDouble(), 1);
    // lines end as everywhere, also in a document that a script takes apart
    EXPECT_EQ(Run({"list", file}).Out.find('\r'), std::string::npos);
}

TEST_F(BraskOnWindows, AHandheldIsEmptiedThroughTheRemoteAccessLibrary) {
    Write("pda/TalvexPDA/collections/Run 2.csv", std::string(10000, 'x'));
    Write("pda/TalvexPPC/collections/Run 1.csv", "one");
    SetEnvironmentVariableW(L"HANDHELD_ROOT", windows::ToWide(At("pda")).c_str());
    const std::string out = At("out.json");
    ASSERT_EQ(RunToEnd("with-rapi/brask", {"retrieve", "--root", At("pc"), "--yes", "--json"},
                       {out, At("err")}),
              0)
        << Read("err");
    rapidjson::Document document;
    document.Parse(Read(out).c_str());
    ASSERT_EQ(document["files"].Size(), 2U);
    for (const auto& file : document["files"].GetArray()) {
        EXPECT_TRUE(file["downloaded"].IsTrue() && file["deleted"].IsTrue());
    }
    EXPECT_EQ(Read("pc/VEK/From PocketPC/Run 2.csv"), std::string(10000, 'x'));
    EXPECT_EQ(Read("pc/VEK/From PocketPC/Run 1.csv"), "one");
    EXPECT_EQ(Listing().find("pda\\TalvexPDA\\collections\\"), std::string::npos) << Listing();
}

}  // namespace
}  // namespace brask
