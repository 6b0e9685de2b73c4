#include "platform/qt/QtText.h"

namespace brask {

QString ToQt(const std::string& utf8) { return QString::fromStdString(utf8); }

std::string FromQt(const QString& text) { return text.toStdString(); }

QString ToQt(const Texts& texts, const TextRow& row) { return ToQt(texts.Find(row)); }

QString AsToolTip(const QString& text) {
    if (text.isEmpty()) return text;
    return QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>");
}

QString WithoutMnemonics(QString text) {
    // kept aside under a character that no caption has, or the next step would take it away too
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(QLatin1Char('&'));
    return text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

}  // namespace brask
