// The second tab: the readings row by row.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QWidget>

#include "app/ui/ReadingsModel.h"

namespace brask {

// Costs nothing while it is hidden: it takes new readings when it is looked at.
class DataPage final : public QWidget {
  public:
    // The references must outlive the page.
    DataPage(const DataSet& readings, const TemperatureUnit& unit, const Texts& texts,
             QWidget* parent);

    // A load begins: nothing of the old readings may be shown from now on.
    void LetGo();
    // The readings have changed; they are shown on the next visit, or at once on a visible page.
    // Also right for a load without readings: the list is then empty.
    void MarkStale();
    // The tab was selected.
    // Cells are made as they come into view, so that filling is cheap for a long file too.
    void Visit();

  private:
    // In the row above the grid, disabled.
    QPushButton* PagingButton(const char* name, const TextRow& caption);

    const DataSet& data_;
    const Texts& texts_;
    // These belong to the page, as its children.
    ReadingsModel* model_;
    QLabel* lblGridCount;
    QTableView* MSFlexGrid1;
    // The readings are newer than the list.
    bool stale_ = false;
};

}  // namespace brask
