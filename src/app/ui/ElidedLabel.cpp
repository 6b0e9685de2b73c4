#include "app/ui/ElidedLabel.h"

#include <QPainter>

#include "platform/qt/QtText.h"

namespace brask {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    // a file may be called like a tag
    setTextFormat(Qt::PlainText);
    setContentsMargins(6, 0, 6, 0);
}

QSize ElidedLabel::minimumSizeHint() const {
    if (text().isEmpty()) return {0, QLabel::minimumSizeHint().height()};
    return {fontMetrics().averageCharWidth() * 6, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    setToolTip(shown == text() ? QString() : AsToolTip(text()));
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft), shown);
}

}  // namespace brask
