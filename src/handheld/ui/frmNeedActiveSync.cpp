#include "handheld/ui/frmNeedActiveSync.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "handheld/HandheldTexts.h"
#include "platform/qt/QtText.h"

namespace brask {

using namespace handheld_texts;

frmNeedActiveSync::frmNeedActiveSync(const Texts& texts, Settings& settings, QWidget* parent)
    : QDialog(parent), settings_(settings) {
    setObjectName(QStringLiteral("frmNeedActiveSync"));
    setWindowTitle(ToQt(texts, kNoticeTitle));
    auto* notice = new QLabel(ToQt(texts, kSyncNotice), this);
    notice->setObjectName(QStringLiteral("lblNotice"));
    notice->setWordWrap(true);
    notice->setMinimumWidth(360);
    auto* cmdNoWarn = new QButtonGroup(this);
    cmdNoWarn->setObjectName(QStringLiteral("cmdNoWarn"));
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (const auto& [index, caption] : {std::pair(0, kOk), std::pair(1, kDoNotWarn)}) {
        auto* button = new QPushButton(ToQt(texts, caption), this);
        button->setObjectName(QStringLiteral("cmdNoWarn_%1").arg(index));
        cmdNoWarn->addButton(button, index);
        row->addWidget(button);
    }
    connect(cmdNoWarn, &QButtonGroup::idClicked, this,
            [this](int index) { cmdNoWarn_Click(index); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(notice);
    layout->addLayout(row);
}

void frmNeedActiveSync::cmdNoWarn_Click(int index) {
    if (index == 1) settings_.Save("NeverWarn", "YES");
    accept();
}

}  // namespace brask
