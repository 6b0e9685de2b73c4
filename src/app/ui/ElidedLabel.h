// A line of text that gives way: cut with "…" where there is no room, whole in its tool tip.
#pragma once

#include <QLabel>

namespace brask {

class ElidedLabel final : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent);

    // Room for a few letters, so that a long text does not keep a window wide.
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace brask
