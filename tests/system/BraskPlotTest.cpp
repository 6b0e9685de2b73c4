#include <QImage>
#include <algorithm>

#include "ProgramRunner.h"

namespace brask {
namespace {

constexpr const char* kApril = BRASK_SAMPLES "/air-quality-april.csv";

class BraskPlot : public ProgramTest {
  protected:
    // Draws the April file, small; the picture, null when that failed.
    QImage Draw(std::vector<std::string> options) const {
        options.insert(options.begin(), {"plot", kApril, "-o", At("a.png"), "--size", "400x300"});
        const Finished finished = Run(options);
        EXPECT_EQ(finished.Status, 0) << testing::PrintToString(options) << finished.Error;
        return QImage(QString::fromStdString(At("a.png")));
    }
};

TEST_F(BraskPlot, WritesThePictureThatTheNameAsksFor) {
    // the name and what the file begins with
    using Case = std::pair<const char*, const char*>;
    for (const auto& [name, bytes] :
         {Case("B.PNG", "\x89PNG"), Case("c.Bmp", "BM"), Case("d.png.bmp.txt", "BM")}) {
        Write(name, "old");
        const auto document = Json({"plot", kApril, "-o", At(name), "--size", "640x360"});
        EXPECT_EQ(KeysOf(document), "picture width height messages");
        EXPECT_STREQ(document["picture"].GetString(), At(name).c_str());
        EXPECT_EQ(Read(name).rfind(bytes, 0), 0U) << name;
        QImage image;
        ASSERT_TRUE(image.loadFromData(QByteArray::fromStdString(Read(name)))) << name;
        EXPECT_EQ(image.size(), QSize(640, 360));
    }
}

TEST_F(BraskPlot, OptionsChangeWhatIsDrawn) {
    const std::vector<std::string> options[] = {
        {},
        {"--no-data-points"},
        {"--fahrenheit"},
        {"--layout", "days"},
        {"--layout", "weeks"},
        {"--layout", "weeks", "--start-week", "monday"},
        {"--layout", "days", "--from", "8:00", "--to", "6:00 PM"},
        {"--from", "5/4/2004", "--to", "6/4/2004", "--date-order", "dmy"},
        {"--from", "5/4/2004", "--to", "6/4/2004"}};
    std::vector<QImage> drawn;
    for (const auto& words : options) {
        const QImage image = Draw(words);
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), image), 0)
            << testing::PrintToString(words);
        drawn.push_back(image);
    }
    Run({"settings", "set", "GraphType", "1"});
    EXPECT_EQ(Draw({}), drawn[3]);
}

TEST_F(BraskPlot, FailuresLeaveTheOldPicture) {
    Write("a.png", "old");
    const auto empty = Json({"plot", Write("empty.csv", ""), "-o", At("a.png")}, 1);
    EXPECT_TRUE(empty["picture"].IsNull());
    EXPECT_EQ(MessagesOf(empty), std::vector<std::string>{"No data was read"});
    EXPECT_EQ(MessagesOf(Json({"plot", kApril, "-o", At("no/such/a.png")}, 1)).size(), 1U);
    EXPECT_EQ(Run({"plot", kApril, "-o", At("a.png"), "--from", "8:00", "--to", "9:00"}).Status, 2);
    EXPECT_EQ(Read("a.png"), "old");
}

}  // namespace
}  // namespace brask
