#include "app/ui/ProgramOptionsPage.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/OptionTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace option_texts;

ProgramOptionsPage::ProgramOptionsPage(const Texts& texts, QWidget* parent)
    : QWidget(parent), texts_(texts), controls_(texts, this) {
    setObjectName(QStringLiteral("frameProgramOptions"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(BuildProgramFrame());
    layout->addWidget(BuildDirectoryFrame());
    frameXPDataAccess = controls_.Frame(kDataAccess, "frameXPDataAccess");
    optDataAccess = controls_.Options("optDataAccess", frameXPDataAccess, {kAllUsers, kOneUser},
                                      Available::kLater);
    layout->addWidget(frameXPDataAccess);
    layout->addWidget(BuildLinksFrame());
    layout->addStretch();
}

QGroupBox* ProgramOptionsPage::BuildProgramFrame() {
    QGroupBox* const frame = controls_.Frame(kProgram);
    chkOpenFullSize = controls_.CheckBox("chkOpenFullSize", kOpenMaximized);
    chkNotifyUserNewFiles = controls_.CheckBox("chkNotifyUserNewFiles", kNotifyNewFiles);
    chkAutoDeleteK42 = controls_.CheckBox("chkAutoDeleteK42", kAutoDelete);
    for (QCheckBox* box : {chkOpenFullSize, chkNotifyUserNewFiles, chkAutoDeleteK42}) {
        frame->layout()->addWidget(box);
    }
    return frame;
}

QGroupBox* ProgramOptionsPage::BuildDirectoryFrame() {
    QGroupBox* const frame = controls_.Frame(kDataDirectory);
    optUseUserDirectory = controls_.Options("optUseUserDirectory", frame,
                                            {kUserDirectory, kSystemDirectory}, Available::kLater);
    lblCurrentPath = new QLabel(frame);
    lblCurrentPath->setObjectName(QStringLiteral("lblCurrentPath"));
    // a directory's name may look like markup
    lblCurrentPath->setTextFormat(Qt::PlainText);
    // paths are wanted elsewhere: they can be copied
    lblCurrentPath->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout;
    row->addWidget(lblCurrentPath, 1);
    row->addWidget(controls_.Button("cmdBrowse", kBrowse));
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(row);
    return frame;
}

QGroupBox* ProgramOptionsPage::BuildLinksFrame() {
    QGroupBox* const frame = controls_.Frame(kInstrumentLink);
    const auto address = [frame](const char* name) {
        auto* box = new QComboBox(frame);
        box->setObjectName(QString::fromLatin1(name));
        // an address can be typed that no search has found
        box->setEditable(true);
        box->setEnabled(false);
        return box;
    };
    cmbInstrumentAddress = address("cmbInstrumentAddress");
    cmbHandheldAddress = address("cmbHandheldAddress");
    auto* handheld = new QHBoxLayout;
    handheld->addWidget(cmbHandheldAddress, 1);
    BuildHandheldChoice();
    handheld->addWidget(cmdBrowseHandheld);
    auto* form = new QFormLayout;
    form->addRow(ToQt(texts_, kInstrumentLink), cmbInstrumentAddress);
    form->addRow(ToQt(texts_, kHandheld), handheld);
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(form);
    return frame;
}

void ProgramOptionsPage::BuildHandheldChoice() {
    cmbHandheldAddress->setEnabled(true);
    cmbHandheldAddress->setAccessibleName(ToQt(texts_, kHandheld));
    // what was typed is no entry before it is known to be an address
    cmbHandheldAddress->setInsertPolicy(QComboBox::NoInsert);
    cmbHandheldAddress->lineEdit()->setPlaceholderText(ToQt(texts_, kHandheldHint));
    cmdBrowseHandheld = controls_.Button("cmdBrowseHandheld", kBrowse);
    cmdBrowseHandheld->setEnabled(true);
    const auto chosen = [this] {
        if (cmbHandheldAddress->currentText() == handheld_) return;
        emit HandheldAddressChosen(cmbHandheldAddress->currentText());
    };
    connect(cmbHandheldAddress->lineEdit(), &QLineEdit::editingFinished, this, chosen);
    connect(cmbHandheldAddress, &QComboBox::activated, this, chosen);
    connect(cmdBrowseHandheld, &QPushButton::clicked, this,
            [this] { emit HandheldBrowseWanted(); });
}

void ProgramOptionsPage::ShowOptions(const ProgramOptions& options,
                                     const DirectoryOptions& directories) {
    chkNotifyUserNewFiles->setChecked(options.NotifyUserOfNewFiles);
    chkAutoDeleteK42->setChecked(options.AutoClear);
    ChooseOption(optUseUserDirectory, options.UserDirectoryActive ? 0 : 1);
    lblCurrentPath->setText(directories.CurrentPath);
    // hidden, not disabled: where the system has no such choice it would only puzzle
    frameXPDataAccess->setVisible(directories.DataAccessChoice);
    ChooseOption(optDataAccess, options.DataAccessIsGlobal ? 0 : 1);
    // the captions name directories, which are known only now
    optDataAccess->button(0)->setText(
        ToQt(texts_.Fill(kAllUsers, {FromQt(directories.SharedDirectory)})));
    optDataAccess->button(1)->setText(ToQt(
        texts_.Fill(kOneUser, {FromQt(directories.UserName), FromQt(directories.UserDirectory)})));
}

void ProgramOptionsPage::ShowAddresses(const QString& instrument, const QString& handheld) {
    // not added to the list: that is for what a search finds
    cmbInstrumentAddress->setEditText(instrument);
    ShowHandheldAddress(handheld);
}

void ProgramOptionsPage::ShowHandheldAddress(const QString& handheld) {
    handheld_ = handheld;
    // the ones used in this run, to change between them
    if (!handheld.isEmpty() && cmbHandheldAddress->findText(handheld) < 0) {
        cmbHandheldAddress->addItem(handheld);
    }
    cmbHandheldAddress->setEditText(handheld);
}

}  // namespace brask
