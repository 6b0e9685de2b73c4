// The drawn plot, by its pixels.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <fstream>
#include <limits>
#include <numeric>

#include "platform/simulated/FixedUserLocale.h"
#include "plot/ui/DynaPlot.h"
#include "unit/plot/CurveOf.h"

namespace brask {
namespace {

constexpr ColorValue kGasColor{0x0000FF};  // red

class Drawing : public testing::Test {
  protected:
    Curve& Add(std::vector<double> x, std::vector<double> y) {
        Curve& curve = Curves.emplace_back(CurveOf(std::move(x), std::move(y)));
        curve.Color = kGasColor;
        return curve;
    }
    // Also draws the curves that were added.
    QImage Draw(QSize size = {800, 500}) {
        Chart1.RemoveCurves();
        for (const Curve& curve : Curves) Chart1.AddCurve(curve);
        Plot.ShowChart();
        return Plot.Picture(size);
    }

    Chart Chart1;
    FixedUserLocale Locale;
    DynaPlot Plot{Chart1, Locale};
    std::vector<Curve> Curves;
};

// Or half red, as a thin line between two rows of pixels is.
bool IsRed(QRgb pixel) { return qRed(pixel) > 200 && qGreen(pixel) < 160 && qBlue(pixel) < 160; }

// Red pixels in each row.
std::vector<int> RedRows(const QImage& picture) {
    std::vector<int> rows;
    for (int y = 0; y < picture.height(); ++y) {
        rows.push_back(0);
        for (int x = 0; x < picture.width(); ++x) rows.back() += IsRed(picture.pixel(x, y)) ? 1 : 0;
    }
    return rows;
}
int Red(const QImage& picture) {
    const auto rows = RedRows(picture);
    return std::accumulate(rows.begin(), rows.end(), 0);
}

TEST_F(Drawing, ASingleSpikeInAMillionReadingsIsSeen) {
    std::vector<double> x(1000000);
    std::vector<double> y(x.size(), 1.0);
    for (std::size_t i = 0; i < x.size(); ++i) x[i] = static_cast<double>(i);
    y[654321] = 99;
    Add(x, y);
    Chart1.X.SetRange(0, 1e6);
    Chart1.Y.SetRange(-0.1, 104);
    const auto rows = RedRows(Draw());
    const auto spike = std::count_if(rows.begin(), rows.end(), [](int n) { return n == 1; });
    EXPECT_GT(spike, 250) << "one pixel wide, nearly as high as the axis";
    EXPECT_GT(*std::max_element(rows.begin(), rows.end()), 500) << "the flat rest";
}

TEST_F(Drawing, ADottedCurveHasGapsSparseOrDense) {
    Chart1.X.SetRange(0, 1);
    Chart1.Y.SetRange(0, 10);
    for (const std::size_t readings : {2U, 100000U}) {
        std::vector<double> x(readings);
        for (std::size_t i = 0; i < readings; ++i) {
            x[i] = static_cast<double>(i) / static_cast<double>(readings - 1);
        }
        Curve& curve = Add(x, std::vector<double>(readings, 4.9));
        const int solid = Red(Draw());
        curve.Line = LineStyle::kDotted;
        const int dotted = Red(Draw());
        EXPECT_GT(dotted, solid / 6) << readings;
        EXPECT_LT(dotted, solid * 2 / 3) << readings;
        Curves.clear();
    }
}

TEST_F(Drawing, BackgroundPictureIsStretchedOrNotAndMayBeMissing) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("red.png"));
    QImage red(20, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(file));
    Chart1.Background.PictureFile = file.toStdString();
    EXPECT_GT(Red(Draw()), 300000);
    Chart1.Background.Stretched = false;
    EXPECT_EQ(Red(Draw()), 200);

    const std::string path = folder.path().toStdString();
    std::ofstream(path + "/text.png") << "no picture";
    ASSERT_EQ(mkfifo((path + "/pipe.png").c_str(), 0600), 0);
    for (const char* odd : {"/text.png", "/pipe.png", "", "/no"}) {
        Chart1.Background.PictureFile = path + odd;
        EXPECT_EQ(Red(Draw()), 0) << odd;
    }
}

TEST_F(Drawing, AnyRangeAndSizeIsDrawn) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    Add({-657434, 38000, 2958465.99, 38000}, {1, 1e308, -1e308, kInfinity});
    Add({}, {});
    const AxisRange ranges[] = {
        {-657434, 2958465.99}, {38000, 38000}, {-1e308, 1e308}, {-kInfinity, 5}, {4995, 5}};
    for (const AxisRange& range : ranges) {
        for (const char* format : {"%d-%b-%Y\n%X", ""}) {
            Chart1.Labels.DateFormat = format;
            Chart1.X.SetRange(range.Minimum, range.Maximum);
            Chart1.Y.SetRange(range.Maximum, range.Minimum);
            Chart1.Y1.SetRange(range.Minimum, range.Maximum);
            for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(30, 400), QSize(300, 200)}) {
                EXPECT_EQ(Draw(size).size(), size.expandedTo({1, 1}));
            }
        }
    }
}

TEST_F(Drawing, AnInvertedAxisHasItsMinimumBelow) {
    Add({0, 1}, {4000, 4000});
    Chart1.Y.SetRange(4995, 5);
    const auto rows = RedRows(Draw());
    const auto line = std::max_element(rows.begin(), rows.end()) - rows.begin();
    EXPECT_GT(line, 300) << "a value near the minimum lies near the bottom";
}

}  // namespace
}  // namespace brask
