#include <QImage>

#include "ProgramRunner.h"

namespace brask {
namespace {

constexpr const char* kApril = BRASK_SAMPLES "/air-quality-april.csv";

class BraskPlot : public ProgramTest {
  protected:
    // Draws the April file into a picture of this name; the picture, null when that failed.
    QImage Draw(const std::string& name, std::vector<std::string> options) const {
        std::vector<std::string> words{"plot", kApril, "-o", At(name)};
        words.insert(words.end(), options.begin(), options.end());
        const Finished finished = Run(words);
        EXPECT_EQ(finished.Status, 0) << testing::PrintToString(options);
        EXPECT_EQ(finished.Error, "");
        return QImage(QString::fromStdString(At(name)));
    }
};

int PixelsOf(const QImage& image, QRgb color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color;
    }
    return count;
}

TEST_F(BraskPlot, WritesThePictureThatTheNameAsksFor) {
    struct Case {
        const char* Name;
        const char* Bytes;  // that the file begins with
    };
    for (const Case& c : {Case{"a.png", "\x89PNG"}, Case{"B.PNG", "\x89PNG"}, Case{"c.Bmp", "BM"},
                          Case{"d.png.bmp.txt", "BM"}}) {
        Write(c.Name, "old");
        const auto document = Json({"plot", kApril, "-o", At(c.Name), "--size", "640x360"});
        EXPECT_EQ(KeysOf(document), "picture width height messages");
        EXPECT_STREQ(document["picture"].GetString(), At(c.Name).c_str());
        EXPECT_EQ(document["width"].GetDouble(), 640);
        EXPECT_EQ(document["height"].GetDouble(), 360);
        EXPECT_EQ(Read(c.Name).rfind(c.Bytes, 0), 0U) << c.Name;
        QImage image;
        ASSERT_TRUE(image.loadFromData(QByteArray::fromStdString(Read(c.Name)))) << c.Name;
        EXPECT_EQ(image.size(), QSize(640, 360));
        EXPECT_GT(PixelsOf(image, qRgb(0, 255, 0)), 100) << c.Name;  // the gas
        EXPECT_GT(PixelsOf(image, qRgb(0, 0, 255)), 100) << c.Name;  // the temperature
    }
    EXPECT_EQ(Draw("e.png", {}).size(), QSize(1600, 900));
}

TEST_F(BraskPlot, OptionsChangeWhatIsDrawn) {
    const std::vector<std::vector<std::string>> options = {
        {},
        {"--no-data-points"},
        {"--fahrenheit"},
        {"--layout", "days"},
        {"--layout", "weeks"},
        {"--layout", "weeks", "--start-week", "monday"},
        {"--layout", "days", "--from", "8:00", "--to", "6:00 PM"},
        {"--from", "03-Apr-2004", "--to", "APR-05-2004 12:00"},
        {"--from", "5/4/2004", "--to", "6/4/2004", "--date-order", "dmy"},
        {"--from", "5/4/2004", "--to", "6/4/2004"},
    };
    std::vector<QImage> drawn;
    for (auto words : options) {
        words.insert(words.end(), {"--size", "400x300"});
        drawn.push_back(Draw("a.png", words));
        for (std::size_t i = 0; i + 1 < drawn.size(); ++i) {
            EXPECT_NE(drawn[i], drawn.back()) << testing::PrintToString(words) << " draws as "
                                              << testing::PrintToString(options[i]);
        }
    }
    Run({"settings", "set", "GraphType", "1"});
    EXPECT_EQ(Draw("a.png", {"--size", "400x300"}), drawn[3]);
}

TEST_F(BraskPlot, FailuresLeaveTheOldPicture) {
    Write("a.png", "old");
    const auto empty = Json({"plot", Write("empty.csv", ""), "-o", At("a.png")}, 1);
    EXPECT_TRUE(empty["picture"].IsNull());
    EXPECT_EQ(MessagesOf(empty), std::vector<std::string>{"No data was read"});
    const auto nowhere = Json({"plot", kApril, "-o", At("no/such/a.png")}, 1);
    EXPECT_EQ(MessagesOf(nowhere).size(), 1U);
    for (const std::vector<std::string>& period :
         {std::vector<std::string>{"--from", "8:00", "--to", "9:00"},
          {"--from", "05-Apr-2004", "--to", "05-Apr-2004"},
          {"--layout", "weeks", "--from", "8:00", "--to", "9:00"}}) {
        std::vector<std::string> words{"plot", kApril, "-o", At("a.png")};
        words.insert(words.end(), period.begin(), period.end());
        EXPECT_EQ(Run(words).Status, 2) << testing::PrintToString(period);
    }
    EXPECT_EQ(Read("a.png"), "old");
}

}  // namespace
}  // namespace brask
