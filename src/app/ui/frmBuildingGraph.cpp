#include "app/ui/frmBuildingGraph.h"

#include <QVBoxLayout>

#include "app/AppTexts.h"
#include "platform/qt/QtText.h"

namespace brask {
namespace {

// In the order of ProgressMode.
constexpr TextRow kModes[] = {app_texts::kFillingGrid, app_texts::kReadingFile,
                              app_texts::kVerifyingData};

}  // namespace

frmBuildingGraph::frmBuildingGraph(const Texts& texts, QWidget* parent)
    // without a close button: only the work knows when it has ended
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      texts_(texts),
      lblMode(new QLabel(this)),
      lblPoints(new QLabel(this)),
      cmdCancel(new QPushButton(ToQt(texts, app_texts::kCancel), this)),
      Timer1Second(new QTimer(this)) {
    setObjectName(QStringLiteral("frmBuildingGraph"));
    lblMode->setObjectName(QStringLiteral("lblMode"));
    lblPoints->setObjectName(QStringLiteral("lblPoints"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    Timer1Second->setObjectName(QStringLiteral("Timer1Second"));
    lblMode->setAlignment(Qt::AlignCenter);
    lblPoints->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 20, 28, 16);
    layout->addWidget(lblMode);
    layout->addWidget(lblPoints);
    layout->addSpacing(8);
    layout->addWidget(cmdCancel, 0, Qt::AlignHCenter);
    setMinimumWidth(280);
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(Timer1Second, &QTimer::timeout, this, [this] { Timer1Second_Timer(); });
}

void frmBuildingGraph::Begin(ProgressMode mode) {
    cancelled_ = false;
    counter_ = 0;
    Timer1Second->stop();
    const QString text = ToQt(texts_, kModes[static_cast<int>(mode)]);
    setWindowTitle(text);
    lblMode->setText(text);
    lblPoints->setText(QString());
    cmdCancel->setVisible(mode == ProgressMode::kReadingFile);
    // the last load may have been cancelled
    cmdCancel->setEnabled(true);
    // verifying counts nothing, and "0 Results" would look like a failure
    if (mode != ProgressMode::kVerifying) Timer1Second->start(1000);
    // not exec: the work goes on behind it
    show();
}

void frmBuildingGraph::End() {
    Timer1Second->stop();
    hide();
}

void frmBuildingGraph::cmdCancel_Click() {
    // Escape comes here in every mode
    if (cmdCancel->isHidden()) return;
    cancelled_ = true;
    // shows that the click was heard; the work may take a moment to see it
    cmdCancel->setEnabled(false);
}

void frmBuildingGraph::Timer1Second_Timer() {
    lblPoints->setText(ToQt(texts_.Fill(app_texts::kResults, {std::to_string(counter_)})));
    counter_ = 0;
}

}  // namespace brask
