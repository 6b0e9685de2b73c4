// Choosers that answer what a test told them, and remember what they were asked.
#pragma once

#include <deque>
#include <vector>

#include "platform/qt/Choosers.h"

namespace brask {

class ScriptedChoosers final : public Choosers {
  public:
    std::deque<QString> Answers;  // taken in turn; a cancel when used up
    std::vector<FileQuestion> Asked;

    std::optional<QString> FileToOpen(QWidget*, const FileQuestion& question) override {
        return Answer(question);
    }
    std::optional<QString> FileToSave(QWidget*, const FileQuestion& question) override {
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
