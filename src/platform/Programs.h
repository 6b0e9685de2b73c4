// This program as the system started it, and other programs as this one may need to run them.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/Result.h"

namespace brask {

class Programs {
  public:
    virtual ~Programs() = default;

    // The words behind this program's name on its command line, UTF-8. `arguments` is what main was
    // handed, the name first; a system that hands main another encoding is asked itself.
    virtual std::vector<std::string> CommandWords(std::span<char* const> arguments) const = 0;
    // What the file of a program is called; "brask-plot" is "brask-plot.exe" on Windows.
    virtual std::string FileName(const std::string& program) const = 0;
    // Runs a program in this one's place: same input, output and error, and its exit status becomes
    // that of this process. A name without a separator is looked for where the system keeps
    // programs. `arguments` come behind the program's own name. Returns only when it failed.
    virtual Error Become(const std::string& program, std::span<const std::string> arguments) = 0;
    // Whether a person watches standard error. Progress is drawn only then: in a log file it would
    // be noise.
    virtual bool ErrorOutputIsTerminal() const = 0;
};

}  // namespace brask
