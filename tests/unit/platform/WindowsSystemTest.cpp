#include <windows.h>
// after windows.h, which it builds on
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <shellapi.h>

#include <tuple>
#include <vector>

#include "platform/SystemInformation.h"
#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsPrograms.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsSystemInformation.h"
#include "platform/windows/WindowsText.h"
#include "platform/windows/WindowsUserLocale.h"

namespace brask {
namespace {

TEST(WindowsText, WhatIsNoTextIsReplaced) {
    const std::string text = "Z\xC3\xBCrich \xF0\x9F\x98\x80";
    EXPECT_EQ(windows::ToUtf8(windows::ToWide(text)), text);
    EXPECT_EQ(windows::ToUtf8(windows::ToWide("a\xFF")), "a\xEF\xBF\xBD");
    EXPECT_EQ(windows::ToUtf8(L"\xD800"
                              L"b"),
              "\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(windows::NativePath(""), L"");
}

TEST(WindowsPrograms, WordsSurviveTheCommandLine) {
    const std::vector<std::string> words = {
        "plain", "", "a b", "\"", "\\", "a\\\\\"b c\\", "*.csv", "\xC3\xBC", "a\tb", "C:\\dir\\"};
    const std::wstring line = windows::CommandLineOf("C:\\a b\\brask.exe", words);
    int count = 0;
    wchar_t** parts = CommandLineToArgvW(line.c_str(), &count);
    std::vector<std::string> read;
    for (int i = 1; i < count; ++i) read.push_back(windows::ToUtf8(parts[i]));
    LocalFree(parts);
    EXPECT_EQ(read, words);
}

TEST(WindowsPrograms, WhatCannotBeStartedSaysWhy) {
    for (const char* name : {"C:\\nowhere\\brask-plot.exe", "no-program-of-this-name"}) {
        EXPECT_EQ(WindowsPrograms().Become(name, {}).Number, ERROR_FILE_NOT_FOUND) << name;
    }
}

// The settings of a section that is the test's own.
class WindowsStore : public testing::Test {
  protected:
    ~WindowsStore() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VEK\\Brask Lite Test");
    }

    const std::string key_ = "Software\\VEK\\Brask Lite Test";
};

TEST_F(WindowsStore, TextsComeBackAndWhatIsNoTextCountsAsMissing) {
    const auto store = WindowsUserStores().Open("Brask Lite Test");
    EXPECT_EQ(store->Get("RecentFiles", "none"), "none");
    for (const std::string& text : {std::string("C:\\Z\xC3\xBCrich\nD:\\b"), std::string(),
                                    std::string(100000, 'x'), std::string(" a ")}) {
        ASSERT_TRUE(store->Save("RecentFiles", text).Ok());
        EXPECT_EQ(WindowsUserStores().Open("Brask Lite Test")->Get("RecentFiles", "none"), text);
    }
    HKEY key = nullptr;
    ASSERT_EQ(
        RegOpenKeyExW(HKEY_CURRENT_USER, windows::ToWide(key_).c_str(), 0, KEY_SET_VALUE, &key),
        ERROR_SUCCESS);
    const DWORD number = 7;
    RegSetValueExW(key, L"Number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4);
    // two characters and no NUL
    RegSetValueExW(key, L"Bare", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"ab"), 4);
    RegCloseKey(key);
    EXPECT_EQ(store->Get("Number", "none"), "none");
    EXPECT_EQ(store->Get("Bare", "none"), "ab");
    // the registry's names end at 255 characters
    EXPECT_NE(windows::WriteRegistryText(HKEY_CURRENT_USER, key_ + std::string(300, 'x'), "a", "b")
                  .Why()
                  .Reason,
              "");
}

TEST(WindowsSystemInformation, TextsOfTheSystem) {
    const WindowsSystemInformation system;
    EXPECT_EQ(SystemErrorText(system, EnglishTexts(), 123456), "??? Unknown Error #123456");
    // of the infrared link: a refused connection
    const std::string refused = system.ErrorText(10061);
    EXPECT_FALSE(refused.empty());
    EXPECT_EQ(refused.find_first_of("\r\n"), std::string::npos) << refused;
    const Error missing = windows::ErrorOf(ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(missing.Number, ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(missing.Reason.ends_with("."));

    EXPECT_EQ(system.Version()->Platform, 2);
    EXPECT_NE(
        system.RegistryText("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", "CurrentVersion"),
        "");
    EXPECT_EQ(system.RegistryText("SOFTWARE\\VEK\\nowhere", "x"), "");
    EXPECT_NE(system.UserName(), "");
    EXPECT_THAT(system.ProgramDirectory(), testing::EndsWith("\\tests"));
}

TEST(WindowsUserLocale, CountriesDiffer) {
    using enum LongDateOrder;
    // the name, the order of dates, the decimal sign, what stands between parts of dates, Sunday
    const std::tuple<const char*, LongDateOrder, char, const char*, const char*> cases[] = {
        {"en-US", kMonthDayYear, '.', "/", "Sunday"},
        {"de-DE", kDayMonthYear, ',', ".", "Sonntag"},
        {"ja-JP", kYearMonthDay, '.', "/", "\xE6\x97\xA5\xE6\x9B\x9C\xE6\x97\xA5"},
        {"no such", kMonthDayYear, '.', "/", "Sunday"}};
    for (const auto& [name, order, decimalSign, separator, sunday] : cases) {
        const WindowsUserLocale locale(name);
        EXPECT_EQ(locale.DateOrder(), order) << name;
        EXPECT_EQ(locale.DecimalSign(), decimalSign) << name;
        const std::string date = locale.ShortDate({2003, 1, 5});
        EXPECT_NE(date.find(separator), std::string::npos) << date;
        EXPECT_NE(date.find("2003"), std::string::npos) << date;
        EXPECT_EQ(locale.DayNames()[0], sunday) << name;
    }
    const WindowsUserLocale locale("en-US");
    EXPECT_EQ(locale.LongTime({{100, 1, 5}, 13, 5, 9}), "1:05:09 PM");
    EXPECT_EQ(locale.MonthNames()[11], "December");
    // before the system's calendar begins every day still has a text of its own
    EXPECT_EQ(locale.ShortDate({100, 2, 3}), "0100-02-03");
}

}  // namespace
}  // namespace brask
