// Running other programs on Windows.
#pragma once

#include "platform/Programs.h"

namespace brask {

class WindowsPrograms final : public Programs {
  public:
    std::vector<std::string> CommandWords(std::span<char* const> arguments) const override;
    std::string FileName(const std::string& program) const override { return program + ".exe"; }
    // There is no taking a place here: the other program runs beside this process, which waits for
    // it and ends with its exit status, and which takes it along when it is ended itself.
    Error Become(const std::string& program, std::span<const std::string> arguments) override;
    bool ErrorOutputIsTerminal() const override;
};

namespace windows {

// The words as one command line that the started program takes apart into the same words.
std::wstring CommandLineOf(const std::string& program, std::span<const std::string> arguments);

}  // namespace windows

}  // namespace brask
