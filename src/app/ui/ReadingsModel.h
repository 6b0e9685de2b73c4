// The readings as rows of a table; nothing is copied per cell.
#pragma once

#include <QAbstractTableModel>

#include "data/DataSet.h"
#include "data/TemperatureUnit.h"
#include "platform/Texts.h"

namespace brask {

class ReadingsModel final : public QAbstractTableModel {
  public:
    ReadingsModel(const DataSet& readings, const TemperatureUnit& unit, const Texts& texts,
                  QObject* parent);

    // Before the readings go away, and after new ones are there.
    void LetGo();
    void TakeReadings();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    // Formatted anew at every repaint: a screen shows some dozens of ten million.
    QString CellText(std::size_t reading, int column) const;

    const DataSet& data_;
    const TemperatureUnit& unit_;
    const Texts& texts_;
    int rows_ = 0;
};

}  // namespace brask
