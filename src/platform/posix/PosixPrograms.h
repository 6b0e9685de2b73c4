// Running other programs on a POSIX system.
#pragma once

#include "platform/Programs.h"

namespace brask {

class PosixPrograms final : public Programs {
  public:
    std::vector<std::string> CommandWords(std::span<char* const> arguments) const override;
    std::string FileName(const std::string& program) const override { return program; }
    Error Become(const std::string& program, std::span<const std::string> arguments) override;
    bool ErrorOutputIsTerminal() const override;
};

}  // namespace brask
