#include "app/ui/ReadingsModel.h"

#include <QColor>

#include "app/AppTexts.h"
#include "data/DateTime.h"
#include "data/NumberText.h"
#include "platform/qt/QtText.h"

namespace brask {
namespace {

// Left to right, as the grid shows them.
enum Column { kResult, kTime, kGas, kTemperature, kMarkers, kColumns };

// White and cyan in turn, with dark letters in every colour scheme: readers follow long rows.
const QColor kOddRow(255, 255, 255);
const QColor kEvenRow(0, 255, 255);
const QColor kLetters(0, 0, 0);

}  // namespace

ReadingsModel::ReadingsModel(const DataSet& readings, const TemperatureUnit& unit,
                             const Texts& texts, QObject* parent)
    : QAbstractTableModel(parent), data_(readings), unit_(unit), texts_(texts) {}

void ReadingsModel::LetGo() {
    beginResetModel();
    // From here on the readings are re-created while events run; a repaint must not ask for one.
    rows_ = 0;
    endResetModel();
}

void ReadingsModel::TakeReadings() {
    beginResetModel();
    rows_ = data_.ReadingCount;
    endResetModel();
}

int ReadingsModel::rowCount(const QModelIndex& parent) const {
    // the rows of a table have no rows of their own
    return parent.isValid() ? 0 : rows_;
}

int ReadingsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QString ReadingsModel::CellText(std::size_t reading, int column) const {
    switch (column) {
        case kResult:
            return QString::number(reading + 1);
        case kTime:
            return ToQt(FormatReadingTime(data_.ReadingTime[reading]));
        case kGas:
            return ToQt(FormatTenths(data_.GasPpm[reading]));
        case kTemperature:
            return ToQt(FormatTenths(data_.Temperature[reading]));
        default:
            return {};
    }
}

QVariant ReadingsModel::data(const QModelIndex& index, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return CellText(static_cast<std::size_t>(index.row()), index.column());
        case Qt::BackgroundRole:
            // rows count from 1, so the first one is odd
            return index.row() % 2 == 0 ? kOddRow : kEvenRow;
        case Qt::ForegroundRole:
            return kLetters;
        case Qt::TextAlignmentRole:
            // points stand below one another when numbers end together
            return QVariant(index.column() == kMarkers ? Qt::AlignLeft | Qt::AlignVCenter
                                                       : Qt::AlignRight | Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant ReadingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case kResult:
            return ToQt(texts_, app_texts::kColumnResult);
        case kTime:
            return ToQt(texts_, app_texts::kColumnTime);
        case kGas:
            return ToQt(texts_, app_texts::kColumnGas);
        case kTemperature:
            return ToQt(texts_.Fill(app_texts::kColumnTemperature, {unit_.Label()}));
        default:
            return ToQt(texts_, app_texts::kColumnMarkers);
    }
}

}  // namespace brask
