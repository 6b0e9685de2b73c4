#include "app/ui/ProgramOptionsPage.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/OptionTexts.h"
#include "platform/HandheldAddress.h"
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
    layout->addWidget(BuildInstrumentFrame());
    layout->addWidget(BuildHandheldFrame());
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
    MakeLive(chkNotifyUserNewFiles, "NotifyUserOfNewFiles");
    MakeLive(chkAutoDeleteK42, "AutoClear");
    return frame;
}

void ProgramOptionsPage::MakeLive(QCheckBox* box, const char* key) {
    box->setEnabled(true);
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) { emit FlagChosen(key, on); });
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

QComboBox* ProgramOptionsPage::AddressBox(const char* name, const TextRow& label,
                                          const TextRow& hint) {
    auto* box = new QComboBox(this);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(ToQt(texts_, label));
    // an address can be typed that no search has found
    box->setEditable(true);
    // completing would turn what was typed into an earlier, longer address
    box->setCompleter(nullptr);
    // what was typed is no entry before it is known to be an address
    box->setInsertPolicy(QComboBox::NoInsert);
    box->lineEdit()->setPlaceholderText(ToQt(texts_, hint));
    return box;
}

QGroupBox* ProgramOptionsPage::BuildInstrumentFrame() {
    QGroupBox* const frame = controls_.Frame(kInstrumentLink);
    cmbInstrumentAddress = AddressBox("cmbInstrumentAddress", kInstrumentLink, kInstrumentHint);
    cmbInstrumentAddress->addItem(QStringLiteral("irda"));
    const auto chosen = [this] {
        const QString address = cmbInstrumentAddress->currentText();
        if (address != instrument_) emit InstrumentAddressChosen(address);
    };
    connect(cmbInstrumentAddress->lineEdit(), &QLineEdit::editingFinished, this, chosen);
    connect(cmbInstrumentAddress, &QComboBox::activated, this, chosen);
    auto* form = new QFormLayout;
    form->addRow(ToQt(texts_, kInstrumentLink), cmbInstrumentAddress);
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(form);
    return frame;
}

QGroupBox* ProgramOptionsPage::BuildHandheldFrame() {
    QGroupBox* const frame = controls_.Frame(kHandheld);
    cmbHandheldAddress = AddressBox("cmbHandheldAddress", kHandheld, kHandheldHint);
    // elsewhere it would only end the program
    if (DefaultHandheldAddress().Remote) cmbHandheldAddress->addItem(QStringLiteral("rapi"));
    const auto chosen = [this] {
        const QString address = cmbHandheldAddress->currentText();
        if (address != handheld_) emit HandheldAddressChosen(address);
    };
    connect(cmbHandheldAddress->lineEdit(), &QLineEdit::editingFinished, this, chosen);
    connect(cmbHandheldAddress, &QComboBox::activated, this, chosen);
    cmdBrowseHandheld = controls_.Button("cmdBrowseHandheld", kBrowse);
    cmdBrowseHandheld->setAccessibleName(ToQt(texts_, kHandheldBrowse));
    cmdBrowseHandheld->setEnabled(true);
    connect(cmdBrowseHandheld, &QPushButton::clicked, this,
            [this] { emit HandheldBrowseWanted(); });
    auto* handheld = new QHBoxLayout;
    handheld->addWidget(cmbHandheldAddress, 1);
    handheld->addWidget(cmdBrowseHandheld);
    auto* form = new QFormLayout;
    form->addRow(ToQt(texts_, kHandheld), handheld);
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(form);
    return frame;
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
    ShowInstrumentAddress(instrument);
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

void ProgramOptionsPage::ShowInstrumentAddress(const QString& instrument) {
    instrument_ = instrument;
    // the ones used in this run, to change between them
    if (!instrument.isEmpty() && cmbInstrumentAddress->findText(instrument) < 0) {
        cmbInstrumentAddress->addItem(instrument);
    }
    cmbInstrumentAddress->setEditText(instrument);
}

}  // namespace brask
