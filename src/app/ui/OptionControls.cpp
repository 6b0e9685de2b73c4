#include "app/ui/OptionControls.h"

#include <QVBoxLayout>

#include "platform/qt/QtText.h"

namespace brask {

QGroupBox* OptionControls::Frame(const TextRow& title, const char* name) const {
    auto* frame = new QGroupBox(ToQt(texts_, title), page_);
    frame->setObjectName(QString::fromLatin1(name));
    // the frame owns it; pages add their rows to it
    new QVBoxLayout(frame);
    return frame;
}

QCheckBox* OptionControls::CheckBox(const char* name, const TextRow& caption) const {
    auto* box = new QCheckBox(ToQt(texts_, caption), page_);
    box->setObjectName(QString::fromLatin1(name));
    // no change of it would be heard yet
    box->setEnabled(false);
    return box;
}

QPushButton* OptionControls::Button(const char* name, const QString& caption) const {
    auto* button = new QPushButton(caption, page_);
    button->setObjectName(QString::fromLatin1(name));
    // the mark of the letter is not read out
    button->setAccessibleName(WithoutMnemonics(caption));
    button->setEnabled(false);
    return button;
}

QPushButton* OptionControls::Button(const char* name, const TextRow& caption) const {
    return Button(name, ToQt(texts_, caption));
}

QRadioButton* OptionControls::Option(QButtonGroup* group, int index, const QString& caption) const {
    auto* button = new QRadioButton(caption, page_);
    button->setObjectName(group->objectName() + QLatin1Char('_') + QString::number(index));
    group->addButton(button, index);
    return button;
}

QButtonGroup* OptionControls::Options(const char* name, QGroupBox* frame,
                                      std::initializer_list<TextRow> captions,
                                      Available available) const {
    auto* group = new QButtonGroup(page_);
    group->setObjectName(QString::fromLatin1(name));
    int index = 0;
    for (const TextRow& caption : captions) {
        QRadioButton* const button = Option(group, index++, ToQt(texts_, caption));
        button->setEnabled(available == Available::kYes);
        frame->layout()->addWidget(button);
    }
    return group;
}

void ChooseOption(QButtonGroup* group, int index) {
    // setChecked sends toggled but no click, and clicks alone are listened to
    if (QAbstractButton* button = group->button(index)) {
        button->setChecked(true);
        return;
    }
    // an exclusive group never gives up its last mark
    group->setExclusive(false);
    for (QAbstractButton* button : group->buttons()) button->setChecked(false);
    group->setExclusive(true);
}

}  // namespace brask
