#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

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
    struct Case {
        KnownFolder Which;
        Variables Environment;
        std::string Path;
    };
    using enum KnownFolder;
    const Case cases[] = {
        {kSettings, {{"HOME", "/home/kim"}}, "/home/kim/.config"},
        {kSettings, {{"HOME", "/home/kim/"}, {"XDG_CONFIG_HOME", "/etc/kim/"}}, "/etc/kim"},
        {kSettings, {{"HOME", "/home/kim"}, {"XDG_CONFIG_HOME", "relative"}}, "/home/kim/.config"},
        {kState, {{"HOME", "/home/kim"}}, "/home/kim/.local/state"},
        {kLog, {{"HOME", "/home/kim"}, {"XDG_STATE_HOME", "/state"}}, "/state/VEK"},
        {kUserDocuments, {{"HOME", "/home/nobody-here"}}, "/home/nobody-here/Documents"}};
    for (const Case& test : cases) EXPECT_EQ(Folder(test.Which, test.Environment), test.Path);
}

TEST(XdgFolder, DocumentsAsTheUserNamedThem) {
    std::string home = (std::filesystem::temp_directory_path() / "brask-home-XXXXXX").string();
    ASSERT_NE(::mkdtemp(home.data()), nullptr);
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
        EXPECT_EQ(Folder(KnownFolder::kSharedDocuments, variables), documents) << list;
    }
    std::filesystem::remove_all(home);
}

TEST(DateOrderOfFormat, OrdersOfRealLocales) {
    using enum LongDateOrder;
    const std::pair<const char*, LongDateOrder> cases[] = {{"%m/%d/%y", kMonthDayYear},
                                                           {"%d/%m/%y", kDayMonthYear},
                                                           {"%d.%m.%Y", kDayMonthYear},
                                                           {"%Y-%m-%d", kYearMonthDay},
                                                           {"%F", kYearMonthDay},
                                                           {"%D", kMonthDayYear},
                                                           {"%-d. %B %EY", kDayMonthYear},
                                                           {"%Oy/%Om/%Od", kYearMonthDay},
                                                           {"%Y%%d %b %e", kYearMonthDay},
                                                           {"%A %d %B %Y", kDayMonthYear},
                                                           {"%Y-%d-%m", kMonthDayYear},
                                                           {"", kMonthDayYear},
                                                           {"%", kMonthDayYear}};
    for (const auto& [format, order] : cases) EXPECT_EQ(DateOrderOfFormat(format), order) << format;
}

TEST(PosixUserLocale, UnknownNamesGiveThePlainLocale) {
    const PosixUserLocale locale("xx_NOWHERE");
    EXPECT_EQ(locale.DateOrder(), LongDateOrder::kMonthDayYear);
    EXPECT_EQ(locale.DecimalSign(), '.');
    EXPECT_EQ(locale.DayNames()[0], "Sunday");
    EXPECT_EQ(locale.MonthNames()[11], "December");
    EXPECT_EQ(locale.ShortDate({2003, 1, 5}), "01/05/03");
    EXPECT_EQ(locale.LongTime({{2003, 1, 5}, 13, 5, 9}), "13:05:09");
}

TEST(PosixSystemInformation, TextsOfErrorNumbers) {
    const PosixSystemInformation system;
    const EnglishTexts texts;
    EXPECT_EQ(SystemErrorText(system, texts, 17), "File exists");
    EXPECT_EQ(SystemErrorText(system, texts, 123456), "??? Unknown Error #123456");
}

}  // namespace
}  // namespace brask
