#include "platform/qt/QtText.h"

namespace brask {

QString ToQt(const std::string& utf8) { return QString::fromStdString(utf8); }

std::string FromQt(const QString& text) { return text.toStdString(); }

QString ToQt(const Texts& texts, const TextRow& row) { return ToQt(texts.Find(row)); }

QString WithoutMnemonics(QString text) {
    // parked as a character that no caption holds, while the single marks are taken out
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(QLatin1Char('&'));
    return text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

}  // namespace brask
