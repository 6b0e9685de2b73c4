#include "handheld/ui/frmAccessPDA.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QVBoxLayout>

#include "handheld/HandheldTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace handheld_texts;

namespace {

enum Column { kName, kDownloaded, kDeleted, kStatus };

constexpr int kNameWidth = 200;
constexpr int kPaintDelay = 250;  // milliseconds

}  // namespace

frmAccessPDA::frmAccessPDA(const Texts& texts, QWidget* parent)
    : QDialog(parent),
      texts_(texts),
      pages_(new QStackedWidget(this)),
      lblWaitingforConnection(new QLabel(ToQt(texts, kWaiting), this)),
      lblStatus(new QLabel(this)),
      MSFlexGrid1(new QTableWidget(0, 4, this)),
      cmdCancel(new QPushButton(ToQt(texts, handheld_texts::kCancel), this)),
      TimerScreenDisplayed(new QTimer(this)) {
    setObjectName(QStringLiteral("frmAccessPDA"));
    setWindowTitle(ToQt(texts, kTitle));
    lblWaitingforConnection->setObjectName(QStringLiteral("lblWaitingforConnection"));
    lblWaitingforConnection->setAlignment(Qt::AlignCenter);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    // names and paths may look like markup, and may be long
    lblStatus->setTextFormat(Qt::PlainText);
    lblStatus->setWordWrap(true);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    TimerScreenDisplayed->setObjectName(QStringLiteral("TimerScreenDisplayed"));
    BuildGrid();
    pages_->addWidget(lblWaitingforConnection);
    pages_->addWidget(MSFlexGrid1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblStatus);
    layout->addWidget(pages_, 1);
    layout->addWidget(cmdCancel, 0, Qt::AlignRight);
    resize(760, 340);
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(TimerScreenDisplayed, &QTimer::timeout, this, [this] { TimerScreenDisplayed_Timer(); });
}

void frmAccessPDA::BuildGrid() {
    MSFlexGrid1->setObjectName(QStringLiteral("MSFlexGrid1"));
    MSFlexGrid1->setAccessibleName(ToQt(texts_, kTitle));
    MSFlexGrid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    MSFlexGrid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    MSFlexGrid1->setSelectionMode(QAbstractItemView::SingleSelection);
    MSFlexGrid1->setHorizontalHeaderLabels(
        {ToQt(texts_, kColumnName), ToQt(texts_, kColumnDownloaded), ToQt(texts_, kColumnDeleted),
         ToQt(texts_, kColumnStatus)});
    MSFlexGrid1->verticalHeader()->hide();
    QHeaderView* const header = MSFlexGrid1->horizontalHeader();
    header->resizeSection(kName, kNameWidth);
    // as wide as their headings, whatever stands below them
    for (const int column : {kDownloaded, kDeleted}) {
        header->resizeSection(column, header->sectionSizeHint(column));
    }
    header->setSectionResizeMode(kStatus, QHeaderView::Stretch);
}

void frmAccessPDA::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (phase_ == Phase::kNotBegun) TimerScreenDisplayed->start(kPaintDelay);
}

void frmAccessPDA::TimerScreenDisplayed_Timer() {
    TimerScreenDisplayed->stop();
    phase_ = Phase::kRunning;
    emit ReadyToRun();
}

void frmAccessPDA::RunEnded(bool stay) {
    phase_ = Phase::kEnded;
    cmdCancel->setText(ToQt(texts_, kClose));
    cmdCancel->setEnabled(true);
    if (!stay || isHidden()) {
        Finish();
        return;
    }
    // a message that was shown meanwhile has left the main window in front
    raise();
    activateWindow();
}

void frmAccessPDA::cmdCancel_Click() { reject(); }

void frmAccessPDA::reject() {
    const Phase phase = phase_;
    TimerScreenDisplayed->stop();
    hide();
    // the run sees it at its next turn for events, and Finish follows its end
    if (phase == Phase::kRunning) {
        emit CancelWanted();
    } else {
        Finish();
    }
}

void frmAccessPDA::Finish() {
    hide();
    emit Closed();
}

void frmAccessPDA::ShowWaiting(bool waiting) {
    if (waiting) {
        pages_->setCurrentWidget(lblWaitingforConnection);
    } else {
        pages_->setCurrentWidget(MSFlexGrid1);
    }
}

void frmAccessPDA::ShowStatus(const std::string& text) { lblStatus->setText(ToQt(text)); }

void frmAccessPDA::ShowRows(const std::vector<RetrievalRow>& rows) {
    MSFlexGrid1->setRowCount(static_cast<int>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) FillRow(static_cast<int>(i), rows[i]);
}

void frmAccessPDA::ShowRow(std::size_t number, const RetrievalRow& row) {
    const int line = static_cast<int>(number);
    FillRow(line, row);
    // a status may take several lines: it names paths
    MSFlexGrid1->resizeRowToContents(line);
    // also scrolls there
    MSFlexGrid1->setCurrentCell(line, kName);
}

void frmAccessPDA::FillRow(int line, const RetrievalRow& row) {
    SetCell(line, kName, ToQt(row.Name));
    SetCell(line, kDownloaded, ToQt(texts_, row.Downloaded ? kYes : kNo));
    SetCell(line, kDeleted, ToQt(texts_, row.Deleted ? kYes : kNo));
    SetCell(line, kStatus, ToQt(row.Status));
}

void frmAccessPDA::SetCell(int row, int column, const QString& text) {
    auto* cell = new QTableWidgetItem(text);
    // a name may be longer than its column
    cell->setToolTip(AsToolTip(text));
    MSFlexGrid1->setItem(row, column, cell);
}

}  // namespace brask
