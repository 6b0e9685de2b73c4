#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Surroundings.h"
#include "data/DataFileLoader.h"

namespace brask {
namespace {

using testing::ElementsAre;

const std::string kLine = "JAN-01-2003 00:05:12,    0.1,  26.1\r\n";

class DataFileLoaderTest : public testing::Test, protected Surroundings {
  protected:
    LoadOutcome Load(const std::string& path, const std::string& content) {
        Disk.Contents[path] = content;
        data_.CurrentDataFile = path;
        return loader_.LoadDataFile({});
    }
    std::string LogText() { return Disk.Contents["/home/log/VEKLog.Txt"]; }

    DataSet data_;
    DiagnosticLog log_{Disk, Clock};
    DataFileLoader loader_{data_, User, Words, Disk, log_};
};

TEST_F(DataFileLoaderTest, ExactMessagesOfBadLines) {
    const std::string bad[] = {"JAN-01-2003 00:05:12,    abc,  26.1",
                               "FEB-30-2003 00:05:12,    0.1,  26.1",
                               "JAN-01-2003 00:05:12,    0.1,  2\xB0 C"};
    EXPECT_EQ(Load("/f.csv", bad[0] + "\r\n" + bad[1] + "\r\n" + bad[2] + "\r\n" + kLine),
              LoadOutcome::kRead);
    const auto text = [](const std::string& what, const std::string& line) {
        return what + " is invalid\r\nOriginal Line=" + line + "\r\nIgnoring this line of data";
    };
    EXPECT_THAT(
        User.ShownTexts(),
        ElementsAre(text("Gas PPM   26.1", bad[0]),
                    text("Date of FEB-30-2003 00:05:12 [Input as FEB-30-2003 00:05:12]", bad[1]),
                    text("Temperature of   2° C", "JAN-01-2003 00:05:12,    0.1,  2° C")));
    EXPECT_THAT(User.Begun, ElementsAre(ProgressMode::kReadingFile));
}

TEST_F(DataFileLoaderTest, MessagesCanBeSwitchedOffForOneLoad) {
    std::string ruined = kLine;
    for (int i = 0; i < 1000; ++i) ruined += "JAN-01-2003 00:05:12,x,26.1\r\n";
    User.RepeatedWanted = 2;
    EXPECT_EQ(Load("/f.csv", ruined), LoadOutcome::kRead);
    EXPECT_EQ(User.Shown.size(), 2U);
    EXPECT_EQ(loader_.RejectedLines(), 1000);
    User.RepeatedWanted = 1 << 30;
    Load("/f.csv", ruined);
    EXPECT_EQ(User.Shown.size(), 1002U) << "the next load shows them again";
}

TEST_F(DataFileLoaderTest, TooLongLinesGoToTheLogWithTheirNumber) {
    Load("/f.csv", kLine + std::string((1 << 20) + 1, 'x') + "\r\n" + kLine);
    EXPECT_EQ(LogText(),
              "[05-Mar-2004 13:30:00] /f.csv, line 2: longer than 1 MiB, dropped to its end\r\n");
    EXPECT_TRUE(User.Shown.empty());
}

TEST_F(DataFileLoaderTest, TempDirectoriesAreNotRead) {
    for (const char* path : {"/temp/f.csv", "/a/Temp/b/f.csv", "/TEMP/f.csv"}) {
        EXPECT_EQ(Load(path, kLine), LoadOutcome::kNothingRead) << path;
        EXPECT_NE(LogText().find(path), std::string::npos);
    }
    for (const char* path : {"/tmp/f.csv", "/temp2/f.csv", "/a/temp", "/my temp/f.csv"}) {
        EXPECT_EQ(Load(path, kLine), LoadOutcome::kRead) << path;
    }
}

TEST_F(DataFileLoaderTest, AFileThatCannotBeReadSaysWhyAndLosesTheLineThatWasCut) {
    Disk.FailAt = 2;  // open, the block, the next one
    EXPECT_EQ(Load("/f.csv", kLine + kLine.substr(0, 33)), LoadOutcome::kRead);
    EXPECT_EQ(data_.ReadingCount, 1);
    EXPECT_THAT(User.ShownTexts(), ElementsAre("Cannot read /f.csv: Input/output error"));
}

TEST_F(DataFileLoaderTest, CancelAndEndLeaveNothingAndSayNothing) {
    std::string many;
    for (int i = 0; i < 5000; ++i) many += kLine;
    int turns = 0;
    User.OnEvents = [&] { User.Cancelled = ++turns == 5; };
    EXPECT_EQ(Load("/f.csv", many), LoadOutcome::kCancelled);
    EXPECT_EQ(data_.ReadingCount, 0);
    User.OnEvents = [&] { User.EndProgram(); };
    EXPECT_EQ(Load("/f.csv", "JAN-01-2003 00:05:12,x,26.1\r\n"), LoadOutcome::kCancelled);
    EXPECT_TRUE(User.Shown.empty());
}

}  // namespace
}  // namespace brask
