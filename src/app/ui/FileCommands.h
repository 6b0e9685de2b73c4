// The commands about data files: open, recent files, save, view headers.
#pragma once

#include <QString>
#include <QWidget>

#include "app/Commands.h"
#include "app/Document.h"
#include "data/DataDirectories.h"
#include "data/FilePlacing.h"
#include "data/RecentFiles.h"
#include "platform/System.h"
#include "platform/qt/Choosers.h"

namespace brask {

// What the commands work on.
struct FileCommandParts {
    Document& Shown;
    Commands& Registry;
    RecentFiles& Recent;
    const DataDirectories& Directories;
    Choosers& Choose;
};

class FileCommands {
  public:
    FileCommands(const System& system, const FileCommandParts& parts, QWidget& window);

    // Opens a file that lies on disk, as the open command does with the chosen one.
    void OpenFile(const QString& path);

  private:
    // Asks for a file, from the data directory on, and opens it.
    void mnuOpen_Click();
    // Copies the file that is loaded; what is shown is never written anew.
    void mnuSaveDataFile_Click();
    // Says what the file tells about itself.
    void mnuViewHeaders_Click();

    System system_;
    FileCommandParts parts_;
    FilePlacing placing_;
    QWidget& window_;
};

}  // namespace brask
