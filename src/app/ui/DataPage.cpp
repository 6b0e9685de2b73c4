#include "app/ui/DataPage.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/AppTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

DataPage::DataPage(const DataSet& readings, const TemperatureUnit& unit, const Texts& texts,
                   QWidget* parent)
    : QWidget(parent),
      data_(readings),
      texts_(texts),
      model_(new ReadingsModel(readings, unit, texts, this)),
      lblGridCount(new QLabel(this)),
      MSFlexGrid1(new QTableView(this)) {
    setObjectName(QStringLiteral("FrameData"));
    lblGridCount->setObjectName(QStringLiteral("lblGridCount"));
    MSFlexGrid1->setObjectName(QStringLiteral("MSFlexGrid1"));
    MSFlexGrid1->setAccessibleName(WithoutMnemonics(ToQt(texts, app_texts::kTabData)));
    MSFlexGrid1->setModel(model_);
    MSFlexGrid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    MSFlexGrid1->verticalHeader()->hide();
    // rows of one height: nothing is measured for ten million of them
    MSFlexGrid1->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    MSFlexGrid1->verticalHeader()->setDefaultSectionSize(MSFlexGrid1->fontMetrics().height() + 6);
    MSFlexGrid1->horizontalHeader()->setStretchLastSection(true);
    // widths in digits of the font in use: rows hold mostly digits, and fonts differ
    const int digit = MSFlexGrid1->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    MSFlexGrid1->setColumnWidth(0, 10 * digit);
    MSFlexGrid1->setColumnWidth(1, 24 * digit);
    MSFlexGrid1->setColumnWidth(2, 14 * digit);
    MSFlexGrid1->setColumnWidth(3, 14 * digit);

    auto* row = new QHBoxLayout;
    row->addWidget(lblGridCount);
    row->addStretch();
    row->addWidget(PagingButton("cmdFirst", app_texts::kFirst));
    row->addWidget(PagingButton("cmdPrevious", app_texts::kPrevious));
    row->addWidget(PagingButton("cmdNext", app_texts::kNext));
    row->addWidget(PagingButton("cmdLast", app_texts::kLast));
    row->addSpacing(16);
    row->addWidget(PagingButton("cmdPrintData", app_texts::kPrintData));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(MSFlexGrid1);
}

// Paging and printing come with the grid's own commands; until then the list scrolls as a whole.
QPushButton* DataPage::PagingButton(const char* name, const TextRow& caption) {
    auto* button = new QPushButton(ToQt(texts_, caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setEnabled(false);
    return button;
}

void DataPage::LetGo() { model_->LetGo(); }

void DataPage::MarkStale() {
    stale_ = true;
    // a hidden page waits: most loads are looked at as a plot
    if (isVisible()) Visit();
}

void DataPage::Visit() {
    if (stale_) model_->TakeReadings();
    stale_ = false;
    // at every visit: the count may have changed while the page was hidden
    lblGridCount->setText(
        ToQt(texts_.Fill(app_texts::kGridCount, {std::to_string(data_.ReadingCount)})));
}

}  // namespace brask
