// The system's own dialogs.
#pragma once

#include "platform/qt/Choosers.h"

namespace brask {

// Has no state. Dialogs are modal; where the desktop has its own they look like that.
class QtChoosers final : public Choosers {
  public:
    std::optional<QString> FileToOpen(QWidget* parent, const FileQuestion& question) override;
    std::optional<QString> FileToSave(QWidget* parent, const FileQuestion& question) override;
    std::optional<QString> Folder(QWidget* parent, const FileQuestion& question) override;
};

// "All Files|*.*|CSV Files|*.csv" in Qt's form, extensions in any letter case.
// Several patterns of one name are parted by ";". A name without a pattern is left out.
QString QtFilter(const QString& filter);

}  // namespace brask
