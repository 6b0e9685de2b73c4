#include "plot/ui/DynaPlot.h"

#include <QFileInfo>
#include <algorithm>

#include "plot/AxisTicks.h"
#include "plot/ui/AxesView.h"
#include "plot/ui/ChartColors.h"
#include "plot/ui/ChartTicker.h"
#include "plot/ui/CurvePlottable.h"
#include "plot/ui/PlotOverlay.h"

namespace brask {
namespace {

constexpr const char* kFontName = "arial";
constexpr int kTickPoints = 9;
constexpr int kAxisTitlePoints = 10;
constexpr int kCaptionPoints = 9;
constexpr double kWidestMoment = 38260.9513;  // a two-digit day and hour
constexpr int kRoomBesideAxis = 130;          // value axes with their titles, pixels

// Without group separators: "10.000" would be read as ten.
QLocale NumberLocale(const UserLocale& user) {
    // only the decimal sign matters to the axes, so any language with a comma will do
    QLocale locale = user.DecimalSign() == ',' ? QLocale(QLocale::German) : QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

QFont PlotFont(int points) { return {kFontName, points}; }

// Between two colours, `share` of the first.
QColor Mixed(const QColor& first, const QColor& second, double share) {
    const auto mix = [share](int a, int b) {
        return static_cast<int>(share * a + (1 - share) * b);
    };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

// A header text may be a megabyte long, which would take minutes to set; no screen shows so much.
constexpr qsizetype kLongestText = 400;

QString Shown(const std::string& text) {
    return QString::fromStdString(text).left(kLongestText).replace("\r\n", "\n");
}

void SetText(QCPTextElement& element, const std::string& text, const QFont& font,
             const QColor& color) {
    element.setText(Shown(text));
    element.setFont(font);
    element.setTextColor(color);
}

void SetRange(QCPAxis& axis, const AxisRange& range, double halfWidth) {
    const AxisRange drawable = DrawableRange(range, halfWidth);
    // the library puts ends in order without a word, so what was asked for is told apart here
    axis.setRange(drawable.Minimum, drawable.Maximum);
    axis.setRangeReversed(range.Minimum > range.Maximum);
}

}  // namespace

DynaPlot::DynaPlot(const Chart& chart, const UserLocale& locale, QWidget* parent)
    : QCustomPlot(parent), chart_(chart), locale_(locale) {
    // the library's plot takes the focus by clicks alone, which leaves out who works by keyboard
    setFocusPolicy(Qt::StrongFocus);
    setLocale(NumberLocale(locale));
    xAxis->setTicker(
        QSharedPointer<ChartTicker>::create(chart, locale, [this] { return MostDateLabels(); }));
    xAxis->setSubTicks(false);
    // the upper axis has no scale: it only closes the frame
    xAxis2->setVisible(true);
    xAxis2->setTicks(false);
    xAxis2->setTickLabels(false);
    yAxis2->setVisible(true);
    for (QCPAxis* axis : {xAxis, yAxis, yAxis2}) {
        axis->setTickLabelFont(PlotFont(kTickPoints));
        axis->setLabelFont(PlotFont(kAxisTitlePoints));
        axis->setLabelPadding(6);
    }
    addLayer(QStringLiteral("over"));
    overLayer_ = layer(QStringLiteral("over"));
    overLayer_->setVisible(false);
    AddTexts();
    // the plot owns both from here on
    new CurvePlottable(chart, xAxis, yAxis, yAxis2);
    overlay_ = new PlotOverlay(chart, *this, overLayer_->name());
}

void DynaPlot::AddTexts() {
    QCPLayoutGrid& rows = *plotLayout();
    rows.setRowSpacing(2);
    // the axes stand in row 0 at first and move down to row 2
    rows.insertRow(0);
    rows.insertRow(0);
    title_ = new QCPTextElement(this);
    caption_ = new QCPTextElement(this);
    readout_ = new QCPTextElement(this);
    rows.addElement(0, 0, title_);
    rows.addElement(1, 0, caption_);
    rows.addElement(3, 0, readout_);
    readout_->setLayer(overLayer_);
}

void DynaPlot::ShowChart() {
    ShowBackground();
    ShowTitle();
    ShowAxes();
    ShowReadout();
    // Drawn before this returns when it can be seen: the readings may go away right after, and the
    // old curves with them. A hidden plot only takes note, so that several changes cost one
    // drawing.
    Outdate();
    if (isVisible()) DrawFrame();
}

void DynaPlot::ShowView() {
    ShowReadout();
    if (chart_.View() == shownView_ && chart_.Background.PictureShown == shownPicture_) {
        UpdateOverlay();
        return;
    }
    if (chart_.Background.PictureShown != shownPicture_) ShowBackground();
    ShowRanges();
    Outdate();
}

void DynaPlot::Outdate() {
    outdated_ = true;
    update();
}

void DynaPlot::UpdateOverlay() { update(overlaid_ | overlay_->Extent() | readout_->rect()); }

void DynaPlot::DrawFrame() {
    const double ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (frame_.size() != pixels) frame_ = QImage(pixels, QImage::Format_RGB32);
    frame_.setDevicePixelRatio(ratio);
    setBufferDevicePixelRatio(ratio);
    frame_.fill(ToColor(chart_.Background.Chart));
    QCPPainter painter(&frame_);
    painter.setRenderHint(QPainter::Antialiasing);
    // the library's own way of drawing is not taken: it keeps pictures with an alpha channel, which
    // take three times as long to put together as the curves to draw
    draw(&painter);
    outdated_ = false;
}

void DynaPlot::paintEvent(QPaintEvent* /*event*/) {
    // a window that was moved to another screen may have other pixels there
    if (outdated_ || frame_.devicePixelRatio() != devicePixelRatioF()) DrawFrame();
    QCPPainter painter(this);
    painter.drawImage(QPointF(0, 0), frame_);
    overlaid_ = overlay_->Extent();
    overlay_->Paint(painter);
    painter.setFont(readout_->font());
    painter.setPen(readout_->textColor());
    painter.drawText(readout_->rect(), readout_->textFlags(), readout_->text());
}

void DynaPlot::resizeEvent(QResizeEvent* /*event*/) {
    setViewport(rect());
    Outdate();
}

void DynaPlot::ShowReadout() {
    SetText(*readout_, chart_.Readout, PlotFont(kCaptionPoints), ToColor(chart_.X.Color));
}

PixelView DynaPlot::ViewOf(ChartAxis axis) const {
    return ViewOfAxes(*xAxis, axis == ChartAxis::kLeft ? *yAxis : *yAxis2);
}

ChartPlace DynaPlot::PlaceAt(const QPointF& pixels) const {
    const PixelRect rect = ViewOf(ChartAxis::kLeft).Rect();
    return {(pixels.x() - rect.Left) / rect.Width, (pixels.y() - rect.Top) / rect.Height};
}

void DynaPlot::focusInEvent(QFocusEvent* event) {
    QCustomPlot::focusInEvent(event);
    update();
}

void DynaPlot::focusOutEvent(QFocusEvent* event) {
    QCustomPlot::focusOutEvent(event);
    update();
}

QImage DynaPlot::Picture(QSize size) {
    size = size.expandedTo(QSize(1, 1));
    QImage picture(size, QImage::Format_RGB32);
    // pixels of a new image hold anything at all
    picture.fill(ToColor(chart_.Background.Chart));
    QCPPainter painter(&picture);
    overLayer_->setVisible(true);
    toPainter(&painter, size.width(), size.height());
    overLayer_->setVisible(false);
    // the axes stand where the picture had them
    updateLayout();
    // before the image is handed out: while painted on it cannot be shared
    painter.end();
    return picture;
}

void DynaPlot::ShowTitle() {
    const TitleBlock title = chart_.Title.value_or(TitleBlock{});
    const QColor color = ToColor(chart_.Background.Title);
    const QString font = QString::fromStdString(title.FontName);
    SetText(*title_, title.Title, QFont(font, title.FontSize), color);
    SetText(*caption_, title.Caption, QFont(font, kCaptionPoints), color);
}

void DynaPlot::ShowAxes() {
    const QColor lines = ToColor(chart_.X.Color);
    const QColor grid = Mixed(lines, ToColor(chart_.Background.Inside), 0.15);
    for (QCPAxis* axis : {xAxis, xAxis2, yAxis, yAxis2}) {
        axis->setBasePen(lines);
        axis->setTickPen(lines);
        axis->setSubTickPen(lines);
        axis->grid()->setPen(QPen(grid, 1, Qt::DotLine));
        axis->grid()->setZeroLinePen(Qt::NoPen);
    }
    ShowRanges();
    ShowXAxis();
    ShowValueAxis(*yAxis, chart_.Y);
    ShowValueAxis(*yAxis2, chart_.Y1);
}

void DynaPlot::ShowRanges() {
    SetRange(*xAxis, chart_.X.Range(),
             chart_.Labels.DateFormat.empty() ? kNumberHalfWidth : kDateHalfWidth);
    SetRange(*yAxis, chart_.Y.Range(), kNumberHalfWidth);
    SetRange(*yAxis2, chart_.Y1.Range(), kNumberHalfWidth);
    shownView_ = chart_.View();
}

void DynaPlot::ShowXAxis() {
    xAxis->setLabel(Shown(chart_.X.Title));
    xAxis->setLabelColor(ToColor(chart_.X.Color));
    xAxis->setTickLabelColor(ToColor(chart_.X.Color));
}

void DynaPlot::ShowValueAxis(QCPAxis& axis, const ChartAxisScale& scale) {
    axis.setLabel(Shown(scale.Title));
    axis.setLabelColor(ToColor(scale.Color));
    axis.setTickLabelColor(ToColor(scale.Color));
}

void DynaPlot::ShowBackground() {
    const ChartBackground& background = chart_.Background;
    // both are set: the colour shows around a picture that is not stretched, and instead of a
    // missing one
    setBackground(QBrush(ToColor(background.Chart)));
    const QPixmap picture = background.PictureShown ? BackgroundPicture() : QPixmap();
    shownPicture_ = background.PictureShown;
    setBackground(picture, background.Stretched, Qt::IgnoreAspectRatio);
    // the picture shows inside the axes too
    axisRect()->setBackground(picture.isNull() ? QBrush(ToColor(background.Inside))
                                               : QBrush(Qt::NoBrush));
}

QPixmap DynaPlot::BackgroundPicture() {
    const std::string& file = chart_.Background.PictureFile;
    const QFileInfo info(QString::fromStdString(file));
    // only a regular file: opening a pipe would wait for ever
    const bool readable = !file.empty() && info.isFile();
    const QDateTime changed = readable ? info.lastModified() : QDateTime();
    // a picture of some megabytes takes longer to read than the plot to draw, and every rebuild
    // comes here
    if (pictureFile_ != file || pictureChanged_ != changed) {
        pictureFile_ = file;
        pictureChanged_ = changed;
        picture_ = readable ? QPixmap(info.filePath()) : QPixmap();
    }
    return picture_;
}

std::size_t DynaPlot::MostDateLabels() const {
    const QFontMetrics metrics(xAxis->tickLabelFont());
    const QString widest =
        QString::fromStdString(FormatDateLabel(kWidestMoment, chart_.Labels.DateFormat, locale_));
    const int label = metrics.size(0, widest).width();
    // not the inside of the axes: its width is still being worked out when this is asked
    const double room = viewport().width() - kRoomBesideAxis;
    return static_cast<std::size_t>(std::clamp(room / (1.4 * label + 1), 2.0, 16.0));
}

}  // namespace brask
