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
    // All of them belong to the main window or to main.
    Document& Shown;
    Commands& Registry;
    RecentFiles& Recent;
    const DataDirectories& Directories;
    Choosers& Choose;
};

// Registers its commands when it is made, and must live as long as they may run. Dialogs open over
// the window that it is given.
class FileCommands {
  public:
    FileCommands(const System& system, const FileCommandParts& parts, QWidget& window);

    // Opens a file that lies on disk, as the open command does with the chosen one.
    // A relative path counts from the directory that the program runs in. Failures are shown, never
    // returned; a load under way makes it do nothing.
    void OpenFile(const QString& path);

  private:
    // Asks for a file, from the data directory on, and opens it.
    // Handlers bear the names of their menu items.
    void mnuOpen_Click();
    // Copies the file that is loaded; what is shown is never written anew.
    void mnuSaveDataFile_Click();
    // Says what the file tells about itself.
    void mnuViewHeaders_Click();

    // Copies of references, which main owns.
    System system_;
    FileCommandParts parts_;
    FilePlacing placing_;
    QWidget& window_;
};

}  // namespace brask
