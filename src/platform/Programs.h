// Other programs, as this one may need to run them.
#pragma once

#include <span>
#include <string>

#include "platform/Result.h"

namespace brask {

class Programs {
  public:
    virtual ~Programs() = default;

    // Runs a program in this one's place: same input, output and error, and its exit status becomes
    // that of this process. A name without a separator is looked for where the system keeps
    // programs. `arguments` come behind the program's own name. Returns only when it failed.
    virtual Error Become(const std::string& program, std::span<const std::string> arguments) = 0;
    // Whether a person watches standard error. Progress is drawn only then: in a log file it would
    // be noise.
    virtual bool ErrorOutputIsTerminal() const = 0;
};

}  // namespace brask
