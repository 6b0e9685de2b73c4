#include <gtest/gtest.h>

#include <tuple>

#include "Surroundings.h"
#include "data/WindowsVersion.h"

namespace brask {
namespace {

class WindowsVersionTest : public testing::Test, protected Surroundings {
  protected:
    WindowsKind Check(const std::optional<VersionRecord>& record) {
        Information.Record = record;
        return CheckWindowsVersion(Information, User, Words, Options);
    }
};

TEST_F(WindowsVersionTest, KindsAndWarnings) {
    // the record, the kind, what the warning names (empty for none)
    using Case = std::tuple<VersionRecord, int, std::string>;
    const Case cases[] = {{{4, 0, 950, 1, " B"}, 2, "95"},
                          {{4, 10, 1998, 1, std::string(" \0A", 3)}, 2, "98 (not second edition)"},
                          {{4, 10, 2222, 1, " a "}, 2, ""},
                          {{4, 0, 1381, 2, ""}, 3, ""},
                          {{5, 0, 2195, 2, ""}, 4, ""},
                          {{5, 1, 2196, 2, ""}, 5, ""},
                          {{6, 0, 6000, 2, ""}, 0, ""}};
    for (const auto& [record, kind, named] : cases) {
        const std::string what = std::to_string(record.Major) + "." + std::to_string(record.Minor);
        Known.Values["WarnedVers"] = "NO";
        User.Shown.clear();
        EXPECT_EQ(static_cast<int>(Check(record)), kind) << what;
        Check(record);  // warned of once
        ASSERT_EQ(User.Shown.size(), named.empty() ? 0U : 1U) << what;
        if (named.empty()) continue;
        const std::string text = User.Shown[0].Text;
        const std::string reported = what + "(" + record.ServicePack.c_str() + ")";
        EXPECT_NE(text.find("\r\nWindows " + named + " is not"), text.npos) << text;
        EXPECT_TRUE(text.ends_with("\r\nReported Windows Build: " + reported)) << text;
    }
}

TEST_F(WindowsVersionTest, ASystemThatDoesNotAnswer) {
    EXPECT_EQ(Check(std::nullopt), WindowsKind::kNotClassified);
    EXPECT_EQ(User.ShownTexts(), std::vector<std::string>{"Error Getting Version Information"});
}

}  // namespace
}  // namespace brask
