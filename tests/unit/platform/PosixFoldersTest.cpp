#include <fstream>
#include <map>
#include <tuple>

#include "FilesFixture.h"
#include "platform/posix/PosixFolders.h"
#include "platform/posix/PosixSystemInformation.h"
#include "platform/posix/PosixUserLocale.h"

namespace brask {
namespace {

using Variables = std::map<std::string, std::string>;

std::string Folder(KnownFolder folder, const Variables& variables) {
    return posix::XdgFolder(folder, [&variables](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? std::string() : found->second;
    });
}

TEST(XdgFolder, BaseDirectories) {
    using enum KnownFolder;
    // the folder, the variables beside HOME, the path
    const std::tuple<KnownFolder, Variables, std::string> cases[] = {
        {kSettings, {}, "/home/kim/.config"},
        {kSettings, {{"XDG_CONFIG_HOME", "/etc/kim/"}}, "/etc/kim"},
        {kSettings, {{"XDG_CONFIG_HOME", "relative"}}, "/home/kim/.config"},
        {kState, {}, "/home/kim/.local/state"},
        {kLog, {{"XDG_STATE_HOME", "/state"}}, "/state/VEK"},
        {kUserDocuments, {}, "/home/kim/Documents"}};
    for (auto [which, variables, path] : cases) {
        variables["HOME"] = "/home/kim/";
        EXPECT_EQ(Folder(which, variables), path);
    }
}

using XdgFolders = FilesTest;

TEST_F(XdgFolders, DocumentsAsTheUserNamedThem) {
    const std::string& home = directory_;
    const std::pair<std::string, std::string> cases[] = {
        {"XDG_DESKTOP_DIR=\"$HOME/Desk\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers/\"\n", home + "/Papers"},
        {"XDG_DOCUMENTS_DIR=\"/srv/papers\"\n", "/srv/papers"},
        {"#XDG_DOCUMENTS_DIR=\"/srv/papers\"\n", home + "/Documents"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", home},
        {"XDG_DOCUMENTS_DIR=\"relative\"\n", home + "/Documents"},
        {"XDG_DOCUMENTS_DIR=\"\n", home + "/Documents"}};
    for (const auto& [list, documents] : cases) {
        std::ofstream(home + "/user-dirs.dirs") << list;
        const Variables variables = {{"HOME", home}, {"XDG_CONFIG_HOME", home}};
        EXPECT_EQ(Folder(KnownFolder::kUserDocuments, variables), documents) << list;
    }
}

TEST(DateOrderOfFormat, OrdersOfRealLocales) {
    using enum LongDateOrder;
    const std::pair<LongDateOrder, std::vector<const char*>> cases[] = {
        {kMonthDayYear, {"%m/%d/%y", "%D", "%Y-%d-%m", "", "%"}},
        {kDayMonthYear, {"%d.%m.%Y", "%-d. %B %EY", "%A %d %B %Y"}},
        {kYearMonthDay, {"%Y-%m-%d", "%F", "%Oy/%Om/%Od", "%Y%%d %b %e"}}};
    for (const auto& [order, formats] : cases) {
        for (const char* format : formats) EXPECT_EQ(DateOrderOfFormat(format), order) << format;
    }
}

TEST(PosixUserLocale, UnknownNamesGiveThePlainLocale) {
    const PosixUserLocale locale("xx_NOWHERE");
    EXPECT_EQ(locale.DateOrder(), LongDateOrder::kMonthDayYear);
    EXPECT_EQ(locale.DecimalSign(), '.');
    EXPECT_EQ(locale.MonthNames()[11], "December");
    EXPECT_EQ(locale.LongTime({{2003, 1, 5}, 13, 5, 9}), "13:05:09");
}

TEST(PosixSystemInformation, TextsOfErrorNumbers) {
    EXPECT_EQ(SystemErrorText(PosixSystemInformation(), EnglishTexts(), 123456),
              "??? Unknown Error #123456");
}

}  // namespace
}  // namespace brask
