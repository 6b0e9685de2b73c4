#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Settings.h"
#include "data/WindowsVersion.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {
namespace {

class FixedSystem final : public SystemInformation {
  public:
    std::optional<VersionRecord> Record;

    std::optional<VersionRecord> Version() const override { return Record; }
    std::string ErrorText(int) const override { return {}; }
    std::string RegistryText(const std::string&, const std::string&) const override { return {}; }
    std::string UserName() const override { return {}; }
    std::string ProgramDirectory() const override { return {}; }
};

struct Outcome {
    int Kind;
    std::vector<Message> Shown;
    std::string WarnedVers;
};

Outcome Check(const std::optional<VersionRecord>& record, const std::string& warned = "NO") {
    FixedSystem system;
    system.Record = record;
    ScriptedUserInterface user;
    MemorySettingsStore store;
    store.Values["WarnedVers"] = warned;
    const FixedUserLocale locale;
    Settings settings(store, store, locale, [](const std::string&, const std::string&) {});
    const WindowsKind kind = CheckWindowsVersion(system, user, EnglishTexts(), settings);
    return {static_cast<int>(kind), user.Shown, store.Values["WarnedVers"]};
}

TEST(WindowsVersion, KindsAndWarnings) {
    struct Case {
        int Major, Minor, Build, Platform;
        std::string_view ServicePack;
        int Kind;
        std::string_view Named;  // in the warning; empty for none
    };
    const Case cases[] = {
        {3, 10, 0, 0, "", 1, ""},
        {4, 0, 950, 1, " B", 2, "95"},
        {4, 9, 950, 1, "A", 2, "95"},
        {4, 10, 1998, 1, "", 2, "98 (not second edition)"},
        {4, 10, 2222, 1, " A ", 2, ""},
        {4, 10, 2222, 1, " a ", 2, ""},
        {4, 10, 1998, 1, std::string_view(" \0A", 3), 2, "98 (not second edition)"},
        {4, 90, 3000, 1, "", 2, ""},
        {4, 0, 1381, 2, "", 3, ""},
        {5, 0, 2195, 2, "", 4, ""},
        {5, 1, 2196, 2, "", 5, ""},
        {6, 0, 6000, 2, "", 0, ""},
        {3, 51, 1057, 2, "", 0, ""},
        {0, 0, 0, -1, "", 0, ""}};
    for (const Case& test : cases) {
        const VersionRecord record{test.Major, test.Minor, test.Build, test.Platform,
                                   std::string(test.ServicePack)};
        const Outcome outcome = Check(record);
        const std::string what = std::to_string(record.Major) + "." + std::to_string(record.Minor);
        EXPECT_EQ(outcome.Kind, test.Kind) << what;
        EXPECT_EQ(outcome.WarnedVers, test.Named.empty() ? "NO" : "YES") << what;
        ASSERT_EQ(outcome.Shown.size(), test.Named.empty() ? 0U : 1U) << what;
        if (test.Named.empty()) continue;
        EXPECT_EQ(outcome.Shown[0].Title, "Windows Version Not Supported");
        EXPECT_EQ(
            outcome.Shown[0].Text,
            "The minimum Supported Windows Version is\r\nWindows 98 Second Edition\r\nWindows " +
                std::string(test.Named) +
                " is not supported\r\nand not all features may work\r\n"
                "Reported Windows Build: " +
                what + "(" + record.ServicePack.c_str() + ")");
    }
}

TEST(WindowsVersion, WarnsOnlyWhileTheStoredWordIsNo) {
    for (const char* stored : {"YES", "no", ""}) {
        EXPECT_TRUE(Check(VersionRecord{4, 0, 950, 1, ""}, stored).Shown.empty()) << stored;
    }
}

TEST(WindowsVersion, ASystemThatDoesNotAnswer) {
    const Outcome outcome = Check(std::nullopt);
    EXPECT_EQ(outcome.Kind, 0);
    ASSERT_EQ(outcome.Shown.size(), 1U);
    EXPECT_EQ(outcome.Shown[0].Text, "Error Getting Version Information");
}

}  // namespace
}  // namespace brask
