#include <gtest/gtest.h>

#include "SettingsFixture.h"
#include "data/WindowsVersion.h"
#include "platform/simulated/FixedSystemInformation.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {
namespace {

class WindowsVersionTest : public testing::Test {
  protected:
    WindowsKind Check(const std::optional<VersionRecord>& record) {
        system_.Record = record;
        return CheckWindowsVersion(system_, user_, EnglishTexts(), settings_.Options);
    }

    FixedSystemInformation system_;
    ScriptedUserInterface user_;
    SettingsInMemory settings_;
};

TEST_F(WindowsVersionTest, KindsAndWarnings) {
    struct Case {
        int Major, Minor, Build, Platform;
        std::string_view ServicePack;
        int Kind;
        std::string_view Named;  // in the warning; empty for none
    };
    const Case cases[] = {
        {4, 0, 950, 1, " B", 2, "95"},
        {4, 10, 1998, 1, std::string_view(" \0A", 3), 2, "98 (not second edition)"},
        {4, 10, 2222, 1, " a ", 2, ""},
        {4, 0, 1381, 2, "", 3, ""},
        {5, 0, 2195, 2, "", 4, ""},
        {5, 1, 2196, 2, "", 5, ""},
        {6, 0, 6000, 2, "", 0, ""},
        {0, 0, 0, -1, "", 0, ""}};
    for (const auto& [major, minor, build, platform, pack, kind, named] : cases) {
        const VersionRecord record{major, minor, build, platform, std::string(pack)};
        const std::string what = std::to_string(major) + "." + std::to_string(minor);
        settings_.Known.Values["WarnedVers"] = "NO";
        user_.Shown.clear();
        EXPECT_EQ(static_cast<int>(Check(record)), kind) << what;
        Check(record);  // warned of once
        EXPECT_EQ(settings_.Known.Values["WarnedVers"], named.empty() ? "NO" : "YES") << what;
        ASSERT_EQ(user_.Shown.size(), named.empty() ? 0U : 1U) << what;
        if (named.empty()) continue;
        EXPECT_EQ(user_.Shown[0].Title, "Windows Version Not Supported");
        EXPECT_EQ(
            user_.Shown[0].Text,
            "The minimum Supported Windows Version is\r\nWindows 98 Second Edition\r\nWindows " +
                std::string(named) +
                " is not supported\r\nand not all features may work\r\n"
                "Reported Windows Build: " +
                what + "(" + record.ServicePack.c_str() + ")");
    }
}

TEST_F(WindowsVersionTest, ASystemThatDoesNotAnswer) {
    EXPECT_EQ(Check(std::nullopt), WindowsKind::kNotClassified);
    EXPECT_EQ(user_.ShownTexts(), std::vector<std::string>{"Error Getting Version Information"});
}

}  // namespace
}  // namespace brask
