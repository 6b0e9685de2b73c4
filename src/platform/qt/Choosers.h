// The system's dialogs that choose something: files now, more as commands need them. Scripted in
// tests.
#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace brask {

// All texts as the user is to see them, already in the user's language.
struct FileQuestion {
    QString Title;
    QString Filter;         // "CSV Files|*.csv|All Files|*.*", the first one chosen
    QString Start;          // directory, or proposed file in it
    QString DefaultSuffix;  // added to a name without extension; for saving
};

// Calls return when the dialog is closed; events run meanwhile, so the parent must not go away.
// Paths are absolute and may name what has vanished since.
class Choosers {
  public:
    virtual ~Choosers() = default;

    // The path of an existing file, or of a file to write (asked again before one that exists is
    // taken). Nothing when the user cancelled.
    virtual std::optional<QString> FileToOpen(QWidget* parent, const FileQuestion& question) = 0;
    virtual std::optional<QString> FileToSave(QWidget* parent, const FileQuestion& question) = 0;
    // The path of an existing folder; only title and start of the question count.
    virtual std::optional<QString> Folder(QWidget* parent, const FileQuestion& question) = 0;
};

}  // namespace brask
