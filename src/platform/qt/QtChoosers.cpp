#include "platform/qt/QtChoosers.h"

#include <QFileDialog>
#include <QStringList>

namespace brask {
namespace {

// Qt matches letter case; a camera's or handheld's "RUN1.CSV" is a data file all the same.
QString AnyCase(const QString& pattern) {
    // taken literally this would hide files without a dot
    if (pattern == QStringLiteral("*.*")) return QStringLiteral("*");
    const QString upper = pattern.toUpper();
    return upper == pattern ? pattern : pattern + QLatin1Char(' ') + upper;
}

std::optional<QString> Ask(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

}  // namespace

QString QtFilter(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(QLatin1Char(';'))) {
            patterns << AnyCase(pattern);
        }
        filters << parts[i] + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return filters.join(QStringLiteral(";;"));
}

std::optional<QString> QtChoosers::FileToOpen(QWidget* parent, const FileQuestion& question) {
    QFileDialog dialog(parent, question.Title, question.Start, QtFilter(question.Filter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog);
}

std::optional<QString> QtChoosers::FileToSave(QWidget* parent, const FileQuestion& question) {
    QFileDialog dialog(parent, question.Title, question.Start, QtFilter(question.Filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Qt adds it before it asks about an existing file, so the question names the right one
    dialog.setDefaultSuffix(question.DefaultSuffix);
    return Ask(dialog);
}

std::optional<QString> QtChoosers::Folder(QWidget* parent, const FileQuestion& question) {
    QFileDialog dialog(parent, question.Title, question.Start);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return Ask(dialog);
}

}  // namespace brask
