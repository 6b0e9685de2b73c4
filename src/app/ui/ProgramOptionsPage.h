// The fourth tab: options of the program itself. Shows what is stored.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include "app/ui/OptionControls.h"
#include "data/ProgramOptions.h"
#include "platform/Texts.h"

namespace brask {

// What the page says about directories and users.
struct DirectoryOptions {
    QString CurrentPath;
    bool DataAccessChoice = false;  // whether this system tells shared from own data
    QString SharedDirectory;
    QString UserName;
    QString UserDirectory;
};

class ProgramOptionsPage final : public QWidget {
  public:
    ProgramOptionsPage(const Texts& texts, QWidget* parent);

    // Sets every control from the stored options.
    void ShowOptions(const ProgramOptions& options, const DirectoryOptions& directories);
    // The start-up reads this option last, by itself.
    void ShowMaximized(bool maximized) { chkOpenFullSize->setChecked(maximized); }
    // The links in force, as they are stored.
    void ShowAddresses(const QString& instrument, const QString& handheld);

  private:
    QGroupBox* BuildProgramFrame();
    QGroupBox* BuildDirectoryFrame();
    QGroupBox* BuildLinksFrame();

    const Texts& texts_;
    OptionControls controls_;
    QCheckBox* chkOpenFullSize = nullptr;
    QCheckBox* chkNotifyUserNewFiles = nullptr;
    QCheckBox* chkAutoDeleteK42 = nullptr;
    QButtonGroup* optUseUserDirectory = nullptr;
    QLabel* lblCurrentPath = nullptr;
    QGroupBox* frameXPDataAccess = nullptr;
    QButtonGroup* optDataAccess = nullptr;
    QComboBox* cmbInstrumentAddress = nullptr;
    QComboBox* cmbHandheldAddress = nullptr;
};

}  // namespace brask
