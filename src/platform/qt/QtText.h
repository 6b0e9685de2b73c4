// Between the core's UTF-8 texts and Qt's.
#pragma once

#include <QString>
#include <string>

#include "platform/Texts.h"

namespace brask {

// Bytes that are no UTF-8 become replacement characters: texts of files are converted before.
QString ToQt(const std::string& utf8);
std::string FromQt(const QString& text);
// A row in the language in force.
QString ToQt(const Texts& texts, const TextRow& row);
// Text for a tool tip as it stands: a tool tip takes what looks like markup for markup, and names
// of files and gases may look like anything.
QString AsToolTip(const QString& text);
// A caption without its mnemonic mark; "&&" becomes the "&" that it stands for.
// For names that are read out, and for texts that are no captions.
QString WithoutMnemonics(QString text);

}  // namespace brask
