// The readings as rows of a table; nothing is copied per cell.
#pragma once

#include <QAbstractTableModel>

#include "data/DataSet.h"
#include "data/TemperatureUnit.h"
#include "platform/Texts.h"

namespace brask {

// One row a reading, in file order; cells cannot be edited. Empty until TakeReadings, and a number
// of rows of its own keeps it from following a load while it runs.
class ReadingsModel final : public QAbstractTableModel {
  public:
    // The references must outlive the model.
    ReadingsModel(const DataSet& readings, const TemperatureUnit& unit, const Texts& texts,
                  QObject* parent);

    // Before the readings go away, and after new ones are there.
    // Both reset the model: selection and place in the list are lost, as they must be.
    void LetGo();
    void TakeReadings();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    // Texts, right-aligned but for the markers, in rows of two colours; nothing for any other role.
    QVariant data(const QModelIndex& index, int role) const override;
    // The temperature's heading names the unit in force.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    // Formatted anew at every repaint: a screen shows some dozens of ten million.
    QString CellText(std::size_t reading, int column) const;

    const DataSet& data_;
    const TemperatureUnit& unit_;
    const Texts& texts_;
    // Readings that are shown; never more than the data set has.
    int rows_ = 0;
};

}  // namespace brask
