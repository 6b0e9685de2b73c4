// The second tab: the readings row by row.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QWidget>

#include "app/ui/ReadingsModel.h"

namespace brask {

class DataPage final : public QWidget {
  public:
    DataPage(const DataSet& readings, const TemperatureUnit& unit, const Texts& texts,
             QWidget* parent);

    // A load begins: nothing of the old readings may be shown from now on.
    void LetGo();
    // The readings have changed; they are shown on the next visit, or at once on a visible page.
    void MarkStale();
    // The tab was selected.
    void Visit();

  private:
    QPushButton* PagingButton(const char* name, const TextRow& caption);

    const DataSet& data_;
    const Texts& texts_;
    ReadingsModel* model_;
    QLabel* lblGridCount;
    QTableView* MSFlexGrid1;
    bool stale_ = false;
};

}  // namespace brask
