#include "plot/ui/frmChangeYScale.h"

#include <QDialogButtonBox>
#include <QGridLayout>

#include "platform/qt/QtText.h"
#include "plot/PlotTexts.h"

namespace brask {

using namespace plot_texts;

frmChangeYScale::frmChangeYScale(const Parts& parts, QWidget* parent)
    : QDialog(parent), parts_(parts) {
    setObjectName(QStringLiteral("frmChangeYScale"));
    setWindowTitle(ToQt(parts_.Words, kChangeScales));
    const ViewRecord view = parts_.Plot.View();
    const auto numbers = [this](const AxisRange& range) {
        return ScaleRow{false, ScaleNumberText(range.Minimum, parts_.Locale),
                        ScaleNumberText(range.Maximum, parts_.Locale)};
    };
    const auto dates = [](const AxisRange& range) {
        return ScaleRow{false, ScaleDateText(range.Minimum), ScaleDateText(range.Maximum)};
    };
    auto* grid = new QGridLayout;
    dates_ = AddRow(*grid, {"chkDates", "txtDateFrom", "txtDateTo"}, kScaleDates,
                    parts_.DatesOnX ? dates(view.X) : numbers(view.X));
    gas_ = AddRow(*grid, {"chkGas", "txtGasFrom", "txtGasTo"}, kScaleGas, numbers(view.Y));
    temperature_ =
        AddRow(*grid, {"chkTemp", "txtTempFrom", "txtTempTo"}, kScaleTemperature, numbers(view.Y1));
    dates_.Check->setEnabled(parts_.DatesOnX);

    lblErr = new QLabel(this);
    lblErr->setObjectName(QStringLiteral("lblErr"));
    // what is typed is repeated in it and must not be read as markup
    lblErr->setTextFormat(Qt::PlainText);
    lblErr->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    CmdOK = buttons->addButton(ToQt(parts_.Words, kOk), QDialogButtonBox::AcceptRole);
    CmdOK->setObjectName(QStringLiteral("CmdOK"));
    QPushButton* const cancel =
        buttons->addButton(ToQt(parts_.Words, kCancel), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { CmdOK_Click(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(lblErr);
    layout->addStretch();
    layout->addWidget(buttons);
    UpdateFields();
}

frmChangeYScale::Row frmChangeYScale::AddRow(QGridLayout& grid, const RowNames& names,
                                             const TextRow& label, const ScaleRow& shown) {
    const int line = grid.rowCount();
    const QString caption =
        ToQt(parts_.Words.Fill(kScaleCaption, {parts_.Words.Find(label), shown.From, shown.To}));
    auto* check = new QCheckBox(caption, this);
    check->setObjectName(QString::fromLatin1(names.Check));
    const auto box = [&](const char* name, const TextRow& which, const std::string& text) {
        auto* edit = new QLineEdit(ToQt(text), this);
        edit->setObjectName(QString::fromLatin1(name));
        edit->setAccessibleName(WithoutMnemonics(ToQt(parts_.Words, label)) + QLatin1Char(' ') +
                                ToQt(parts_.Words, which));
        edit->setMinimumWidth(
            edit->fontMetrics().horizontalAdvance(QStringLiteral("30-Mmm-2000 00:00:00 ")));
        connect(edit, &QLineEdit::textChanged, this, [this] { UpdateFields(); });
        return edit;
    };
    const Row row{check, box(names.From, kScaleFrom, shown.From),
                  box(names.To, kScaleTo, shown.To)};
    connect(check, &QCheckBox::toggled, this, [this] { UpdateFields(); });
    grid.addWidget(check, line, 0, 1, 3);
    grid.addWidget(row.From, line + 1, 0);
    grid.addWidget(new QLabel(ToQt(parts_.Words, kScaleTo), this), line + 1, 1);
    grid.addWidget(row.To, line + 1, 2);
    return row;
}

ScaleEntry frmChangeYScale::Entry() const {
    const auto typed = [](const Row& row) {
        return ScaleRow{row.Check->isChecked(), FromQt(row.From->text()), FromQt(row.To->text())};
    };
    return {typed(dates_), typed(gas_), typed(temperature_)};
}

ScaleReading frmChangeYScale::Reading() const {
    return ReadScaleEntry(Entry(), parts_.Plot.View(), parts_.Locale, parts_.DateOrder,
                          parts_.Words);
}

void frmChangeYScale::UpdateFields() {
    // called while the rows are still being made
    if (CmdOK == nullptr) return;
    for (const Row& row : {dates_, gas_, temperature_}) {
        row.From->setEnabled(row.Check->isChecked());
        row.To->setEnabled(row.Check->isChecked());
    }
    const ScaleReading reading = Reading();
    CmdOK->setEnabled(reading.View.has_value());
    lblErr->setText(ToQt(reading.Message));
}

void frmChangeYScale::CmdOK_Click() {
    const ScaleReading reading = Reading();
    // the whole view at once: an axis never meets a new minimum above its old maximum
    if (reading.View && parts_.Navigation.ShowView(*reading.View)) accept();
}

}  // namespace brask
