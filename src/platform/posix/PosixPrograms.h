// Running other programs on a POSIX system.
#pragma once

#include "platform/Programs.h"

namespace brask {

class PosixPrograms final : public Programs {
  public:
    Error Become(const std::string& program, std::span<const std::string> arguments) override;
    bool ErrorOutputIsTerminal() const override;
};

}  // namespace brask
