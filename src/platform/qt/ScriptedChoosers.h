// Choosers that answer what a test told them, and remember what they were asked.
#pragma once

#include <deque>
#include <vector>

#include "platform/qt/Choosers.h"

namespace brask {

// Both kinds of question take from the one list of answers. No dialog is made, and no answer is
// checked: a test may hand over a path that does not exist.
class ScriptedChoosers final : public Choosers {
  public:
    std::deque<QString> Answers;  // taken in turn; a cancel when used up
    // In order of asking, also those that were cancelled.
    std::vector<FileQuestion> Asked;

    // The parent does not matter: nothing is shown.
    std::optional<QString> FileToOpen(QWidget*, const FileQuestion& question) override {
        return Answer(question);
    }
    std::optional<QString> FileToSave(QWidget*, const FileQuestion& question) override {
        return Answer(question);
    }
    std::optional<QString> Folder(QWidget*, const FileQuestion& question) override {
        return Answer(question);
    }

  private:
    std::optional<QString> Answer(const FileQuestion& question) {
        Asked.push_back(question);
        if (Answers.empty()) return std::nullopt;
        const QString answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
};

}  // namespace brask
