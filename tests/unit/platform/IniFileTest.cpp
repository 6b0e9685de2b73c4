#include <gtest/gtest.h>

#include "platform/IniFile.h"

namespace brask {
namespace {

IniFile Parsed(std::string_view content) { return std::move(IniFile::Parse(content).Value()); }

TEST(IniFile, KeysAndValuesOfAnyBytesComeBackFromTheText) {
    using namespace std::string_literals;
    const std::string texts[] = {
        "",       " ",       "\t a \t", "%",     "%2",       "%41",          "100%",
        "a=b",    "=",       "[x]",     "[x",    "a ]",      "; no",         "#FF",
        "a\r\nb", "\n[S]\n", "\0\0"s,   "Größe", "\xFF\xFE", "\xEF\xBB\xBF", "C:\\my d"};
    for (const std::string& key : texts) {
        for (const std::string& value : texts) {
            IniFile file;
            file.Set("S", "before", "1");
            file.Set("S", key, value);
            file.Set("S", "behind", "2");
            const IniFile again = Parsed(file.Text());
            EXPECT_EQ(again.Get("S", key), value) << file.Text();
            EXPECT_EQ(again.Get("S", "before"), "1") << file.Text();
            EXPECT_EQ(again.Get("S", "behind"), "2") << file.Text();
            EXPECT_EQ(again.Text(), file.Text());
        }
    }
}

TEST(IniFile, WhatStandsInTheTextIsReadAsItStands) {
    const IniFile file = Parsed(
        "\xEF\xBB\xBF; ours\r\n[A]\r\n  Key = a b % c %4g %zz \r\nkey=lower\n[B]\nKey=of B\n"
        "[A]\nKey2=%25%0D%0a%20");
    EXPECT_EQ(file.Get("A", "Key"), "a b % c %4g %zz");
    EXPECT_EQ(file.Get("A", "key"), "lower");
    EXPECT_EQ(file.Get("B", "Key"), "of B");
    EXPECT_EQ(file.Get("A", "Key2"), "%\r\n ");
    EXPECT_EQ(file.Get("B", "Key2"), std::nullopt);
    EXPECT_EQ(file.Get("", "Key"), std::nullopt);
}

TEST(IniFile, ChangingOneKeyLeavesEverythingElseInItsPlace) {
    IniFile file = Parsed("; top\n\n[Other]\nx=1\n[Ours]\na=1\nb=2\nb=3\n\n[Last]\nUnknown=kept\n");
    EXPECT_EQ(file.Get("Ours", "b"), "3") << "the last of two equal keys counts";
    file.Set("Ours", "a", "10");
    file.Set("Ours", "b", "30");
    file.Set("Last", "c", "4");
    file.Set("New", "d", "5");
    EXPECT_EQ(file.Text(),
              "; top\n\n[Other]\nx=1\n[Ours]\na=10\nb=2\nb=30\n\n[Last]\nUnknown=kept\nc=4\n"
              "[New]\nd=5\n");
}

}  // namespace
}  // namespace brask
