// The system's own dialogs.
#pragma once

#include "platform/qt/Choosers.h"

namespace brask {

class QtChoosers final : public Choosers {
  public:
    std::optional<QString> FileToOpen(QWidget* parent, const FileQuestion& question) override;
    std::optional<QString> FileToSave(QWidget* parent, const FileQuestion& question) override;
};

// "All Files|*.*|CSV Files|*.csv" in Qt's form, extensions in any letter case. "CSV Files|*.csv"
// becomes "CSV Files (*.csv *.CSV)".
QString QtFilter(const QString& filter);

}  // namespace brask
