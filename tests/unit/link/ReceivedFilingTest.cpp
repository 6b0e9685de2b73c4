#include <tuple>

#include "LinkFixture.h"
#include "link/ReceivedFiling.h"

namespace brask {
namespace {

FiledDownload File(Download& download, const std::string& raw) {
    download.Disk.Contents["/raw"] = raw;
    return ReceivedFiling(download.System(), download.Data(), [] { return true; })
        .VerifyAndFile("/raw");
}

TEST(ReceivedFiling, Verdicts) {
    const std::string head = "INSTRUMENT: A1\r\n";
    const std::string line = "JAN-01-2003 00:05:12,    0.1,  26.1\r\n";
    const std::string wrongCount = "File was not received correctly\r\n";
    // the expanded file; accepted, counted, expected (-1 for none), the message, what the log says
    using Case = std::tuple<std::string, bool, int, double, std::string, std::string>;
    const Case cases[] = {
        {head + line + line + "END DATA: 2\r\n", true, 2, 2, "", "accepted with 2"},
        {head + line + "END DATA:1 lines\r\nDATE: x\r\n", true, 1, 1, "", "accepted"},
        {head + line + "END DATA: 7\r\nEND DATA: 1\r\n", true, 1, 1, "", "accepted"},
        {head + line + "END DATA: 2\r\n", false, 1, 2,
         wrongCount + "Received 1 lines\r\nExpected 2 Lines",
         "was rejected: File was not received correctly Received 1 lines Expected 2 Lines"},
        {head + "END DATA: 0\r\n", false, 0, 0,
         "Talvex© K42 Instrument did not have any data in it to download!", ""},
        {head + line, false, 1, -1, "", "has no END DATA: line"},
        {"A\r\n", false, 0, -1, "", "it has 3 bytes"},
        {head + "JAN-01-2003 00:05:12,   0.1,  26.1\r\n" + line + "END DATA: 2\r\n", false, 1, -1,
         "Data Line: JAN-01-2003 00:05:12,   0.1,  26.1 is invalid (LEN), Transfer Data Again", ""},
        {head + "END DATA: 1\r\nJAN-01-2003 00:05:12,    0.1,  26.15\r\n", false, 1, 1,
         "Data Line: JAN-01-2003 00:05:12,    0.1,  26.15 is invalid (LEN), Transfer Data Again",
         ""},
        {head + "END DATA: 1," + std::string(11, ' ') + "," + std::string(11, ' ') + "\r\n", true,
         1, 1, "", "accepted"}};
    for (const auto& [data, accepted, counted, expected, message, log] : cases) {
        Download download;
        const FiledDownload filed = File(download, data);
        EXPECT_EQ(filed.Accepted, accepted) << data;
        EXPECT_EQ(filed.Counted, counted) << data;
        EXPECT_EQ(filed.Expected.value_or(-1), expected) << data;
        const auto texts = download.User.ShownTexts();
        EXPECT_EQ(texts, message.empty() ? std::vector<std::string>() : std::vector{message});
        EXPECT_NE(download.Disk.Contents[download.Log.Path()].find(log), std::string::npos) << log;
        EXPECT_EQ(download.Disk.Contents[filed.File], data) << "rejected files stay, too";
        EXPECT_EQ(download.User.Notices.size(), accepted ? 1U : 0U);
    }
}

TEST(ReceivedFiling, WhateverTheInstrumentIsCalledTheFileLiesInItsDirectory) {
    const std::string stamp = " 03_05_2004_13_30_00.csv";
    // names cut to what file systems take keep their time; the rest is the names' own test
    const std::pair<std::string, std::string> cases[] = {
        {"../x:y", "K42 .._x_y" + stamp},
        {std::string(300, 'x'), "K42 " + std::string(255 - 4 - stamp.size(), 'x') + stamp},
        {"", "K42 " + stamp}};
    for (const auto& [text, name] : cases) {
        Download download;
        EXPECT_EQ(File(download, "INSTRUMENT:  " + text + " \r\nEND DATA: 0\r\n").File,
                  kInstrumentDir + name);
    }
}

TEST(ReceivedFiling, ReplacesAFileOfThatNameAndKeepsItsContent) {
    Download download;
    download.Disk.Contents[kFiledName] = "old";
    EXPECT_TRUE(File(download, kStream).Accepted);
    EXPECT_EQ(download.Disk.Contents[kFiledName], kDataFile);
    const auto kept = download.Recovery.List();
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(download.Disk.Contents[download.Recovery.Path() + "/" + kept[0].Name], "old");
    EXPECT_TRUE(File(download, kStream).Accepted);
    EXPECT_EQ(download.Recovery.List().size(), 1U) << "the same content again";
}

TEST(ReceivedFiling, WhatCannotBeKeptIsNotReplaced) {
    Download download;
    download.Disk.Directories.insert(kFiledName);
    const std::size_t files = download.Disk.Contents.size();
    EXPECT_EQ(File(download, kStream).File, "");
    EXPECT_EQ(download.User.Notices.size(), 1U);
    EXPECT_EQ(download.Disk.Contents.size(), files + 2) << "the stream and the log";
}

}  // namespace
}  // namespace brask
