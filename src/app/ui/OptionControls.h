// Making the controls of the option pages: each gets its object name, caption and accessible name.
// A control whose work does not exist yet is made disabled, so that users see what will be there.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <initializer_list>

#include "platform/Texts.h"

namespace brask {

enum class Available { kYes, kLater };

// Nothing is kept here: whoever asks for a control keeps the pointer, and the page owns the
// control. Names become object names as they are.
class OptionControls {
  public:
    // Controls become children of `page`.
    OptionControls(const Texts& texts, QWidget* page) : texts_(texts), page_(page) {}

    // A titled frame with a column of rows.
    QGroupBox* Frame(const TextRow& title, const char* name = "") const;
    // Disabled, as all single boxes and buttons are until somebody listens to them.
    QCheckBox* CheckBox(const char* name, const TextRow& caption) const;
    // The caption without its mnemonic is what screen readers say; set another where it is empty.
    QPushButton* Button(const char* name, const QString& caption) const;
    QPushButton* Button(const char* name, const TextRow& caption) const;
    // For captions that are no row of a table. Enabled, and not yet in any layout.
    QRadioButton* Option(QButtonGroup* group, int index, const QString& caption) const;
    // A group of option buttons name_0, name_1, ... added to the frame below one another.
    QButtonGroup* Options(const char* name, QGroupBox* frame,
                          std::initializer_list<TextRow> captions, Available available) const;

  private:
    const Texts& texts_;
    QWidget* page_;
};

// Marks one button of a group, or none for an index that no button has, without any signal that
// a user's click would send.
void ChooseOption(QButtonGroup* group, int index);

}  // namespace brask
