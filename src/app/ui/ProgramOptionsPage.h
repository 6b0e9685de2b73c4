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
    // Where data lies now: the user's own choice, or the system's place for it.
    QString CurrentPath;
    bool DataAccessChoice = false;  // whether this system tells shared from own data
    // These three fill the captions of the choice, also while it is hidden.
    QString SharedDirectory;
    QString UserName;
    QString UserDirectory;
};

// Controls whose work does not exist yet are disabled.
class ProgramOptionsPage final : public QWidget {
    Q_OBJECT

  public:
    // Texts must outlive the page.
    ProgramOptionsPage(const Texts& texts, QWidget* parent);

    // Sets every control from the stored options.
    // May be called again when directories have changed.
    void ShowOptions(const ProgramOptions& options, const DirectoryOptions& directories);
    // The start-up reads this option last, by itself.
    void ShowMaximized(bool maximized) { chkOpenFullSize->setChecked(maximized); }
    // The links in force, as they are stored.
    // Shown as typed; nothing is looked up.
    void ShowAddresses(const QString& instrument, const QString& handheld);
    // The instrument's address alone; sends nothing.
    void ShowInstrumentAddress(const QString& instrument);
    // The handheld's address alone; sends nothing.
    void ShowHandheldAddress(const QString& handheld);

  signals:
    // A box was set or cleared; the key is the setting's. Also sent when options are shown, under
    // the loading guard.
    void FlagChosen(const char* key, bool on);
    // Typed or chosen from the lists, and another one than shown before; not checked yet.
    void InstrumentAddressChosen(const QString& address);
    void HandheldAddressChosen(const QString& address);
    void HandheldBrowseWanted();

  private:
    // One frame each, from top to bottom.
    QGroupBox* BuildProgramFrame();
    QGroupBox* BuildDirectoryFrame();
    QGroupBox* BuildInstrumentFrame();
    QGroupBox* BuildHandheldFrame();
    QComboBox* AddressBox(const char* name, const TextRow& label, const TextRow& hint);
    void MakeLive(QCheckBox* box, const char* key);

    const Texts& texts_;
    OptionControls controls_;
    // The controls, under the names that help and tests know; all belong to the page.
    QCheckBox* chkOpenFullSize = nullptr;
    QCheckBox* chkNotifyUserNewFiles = nullptr;
    QCheckBox* chkAutoDeleteK42 = nullptr;
    // Button 0 is the user's directory, 1 the system's.
    QButtonGroup* optUseUserDirectory = nullptr;
    QLabel* lblCurrentPath = nullptr;
    // Hidden on systems that make no such difference.
    QGroupBox* frameXPDataAccess = nullptr;
    QButtonGroup* optDataAccess = nullptr;
    QComboBox* cmbInstrumentAddress = nullptr;
    QComboBox* cmbHandheldAddress = nullptr;
    QPushButton* cmdBrowseHandheld = nullptr;
    // As shown last.
    QString instrument_;
    QString handheld_;
};

}  // namespace brask
