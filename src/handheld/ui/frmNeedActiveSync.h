// The notice at start-up that the synchronization software for the handheld is missing.
#pragma once

#include <QDialog>

#include "data/Settings.h"
#include "platform/Texts.h"

namespace brask {

// Modal. Its second button stores that the notice is not wanted again.
class frmNeedActiveSync final : public QDialog {
  public:
    frmNeedActiveSync(const Texts& texts, Settings& settings, QWidget* parent);

  private:
    void cmdNoWarn_Click(int index);

    Settings& settings_;
};

}  // namespace brask
