#include "link/ui/frmDiscoverStatus.h"

#include <QPalette>
#include <QVBoxLayout>

#include "link/LinkTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace link_texts;

namespace {

// milliseconds
constexpr int kPaintDelay = 100;
constexpr int kRateInterval = 1000;
constexpr int kElapsedInterval = 100;

constexpr QRgb kPromptColor = 0xFFFF0000;

// "0:07", "12:30", "1:02:03".
QString ClockText(std::int64_t seconds) {
    const QString text = QStringLiteral("%1:%2")
                             .arg(seconds / 60 % 60, seconds < 3600 ? 1 : 2, 10, QLatin1Char('0'))
                             .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return seconds < 3600 ? text : QStringLiteral("%1:").arg(seconds / 3600) + text;
}

}  // namespace

frmDiscoverStatus::frmDiscoverStatus(const Texts& texts, const Clock& clock, QWidget* parent)
    : QDialog(parent),
      texts_(texts),
      clock_(clock),
      lblElapsed(new QLabel(this)),
      progressBar(new QProgressBar(this)),
      cmdCancel(new QPushButton(ToQt(texts, link_texts::kCancel), this)),
      Timer1(new QTimer(this)),
      Timer2(new QTimer(this)),
      timer10s(new QTimer(this)) {
    setObjectName(QStringLiteral("frmDiscoverStatus"));
    setWindowTitle(ToQt(texts, kDownloadTitle));
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer2->setObjectName(QStringLiteral("Timer2"));
    timer10s->setObjectName(QStringLiteral("timer10s"));
    Timer1->setSingleShot(true);
    Arrange();
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(Timer1, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    connect(Timer2, &QTimer::timeout, this, [this] { Timer2_Timer(); });
    connect(timer10s, &QTimer::timeout, this, [this] { timer10s_Timer(); });
}

void frmDiscoverStatus::Arrange() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 20, 28, 16);
    for (std::size_t i = 0; i < lblIRDAConnect.size(); ++i) {
        auto* label = new QLabel(this);
        label->setObjectName(QStringLiteral("lblIRDAConnect_%1").arg(i));
        label->setAlignment(Qt::AlignCenter);
        // a status text names the device, in whatever characters that calls itself
        label->setTextFormat(Qt::PlainText);
        if (i > 0 && i % 2 == 0) layout->addSpacing(8);
        layout->addWidget(label);
        lblIRDAConnect[i] = label;
    }
    lblElapsed->setObjectName(QStringLiteral("lblElapsed"));
    lblElapsed->setAlignment(Qt::AlignCenter);
    progressBar->setObjectName(QStringLiteral("progressBar"));
    progressBar->setAccessibleName(ToQt(texts_, kProgressName));
    // moves without a percentage: the instrument does not say how much it holds
    progressBar->setRange(0, 0);
    progressBar->setTextVisible(false);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    layout->addSpacing(8);
    layout->addWidget(progressBar);
    layout->addWidget(lblElapsed);
    layout->addSpacing(8);
    layout->addWidget(cmdCancel, 0, Qt::AlignHCenter);
    setMinimumWidth(360);
}

void frmDiscoverStatus::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (phase_ != Phase::kNotBegun) return;
    begun_ = clock_.SteadyMilliseconds();
    timer10s_Timer();
    timer10s->start(kElapsedInterval);
    Timer1->start(kPaintDelay);
}

void frmDiscoverStatus::Timer1_Timer() {
    phase_ = Phase::kRunning;
    emit ReadyToRun();
}

void frmDiscoverStatus::OnDownload(const DownloadDisplay& display) {
    for (std::size_t i = 0; i < lblIRDAConnect.size(); ++i) {
        lblIRDAConnect[i]->setText(ToQt(display.Labels[i]));
    }
    ShowPrompt(display.Prompt);
    bytes_ = display.Bytes;
    if (display.Step == step_) return;
    step_ = display.Step;
    if (step_ == DownloadStep::kReceiving) {
        // waiting for the instrument is over: from here on the time is the transfer's
        begun_ = clock_.SteadyMilliseconds();
        Timer2->start(kRateInterval);
    } else {
        Timer2->stop();
        progressBar->setToolTip(QString());
    }
    if (step_ > DownloadStep::kReceiving) {
        // nothing comes any more: the time stays the transfer's, and the bar rests
        timer10s->stop();
        progressBar->setRange(0, 1);
        progressBar->setValue(1);
    }
}

void frmDiscoverStatus::ShowPrompt(bool prompt) {
    if (prompt == prompt_) return;
    prompt_ = prompt;
    QPalette colors;
    if (prompt) colors.setColor(QPalette::WindowText, QColor(kPromptColor));
    lblIRDAConnect[4]->setPalette(colors);
    lblIRDAConnect[5]->setPalette(colors);
}

void frmDiscoverStatus::Timer2_Timer() {
    progressBar->setToolTip(ToQt(RateText(texts_, bytes_, ElapsedTenths())));
}

void frmDiscoverStatus::timer10s_Timer() {
    const std::string elapsed = FromQt(ClockText(ElapsedTenths() / 10));
    lblElapsed->setText(ToQt(texts_.Fill(kElapsed, {elapsed})));
}

std::int64_t frmDiscoverStatus::ElapsedTenths() const {
    return (clock_.SteadyMilliseconds() - begun_) / 100;
}

void frmDiscoverStatus::cmdCancel_Click() {
    Timer1->stop();
    hide();
    // a run that has begun ends first; RunEnded follows
    if (phase_ == Phase::kRunning) {
        emit CancelWanted();
    } else {
        Finish();
    }
}

void frmDiscoverStatus::RunEnded() {
    Timer2->stop();
    timer10s->stop();
    Finish();
}

void frmDiscoverStatus::Finish() {
    hide();
    if (phase_ == Phase::kEnded) return;
    phase_ = Phase::kEnded;
    emit Closed();
}

}  // namespace brask
