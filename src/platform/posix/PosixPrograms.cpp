#include "platform/posix/PosixPrograms.h"

#include <unistd.h>

#include <vector>

#include "platform/posix/PosixHandle.h"

namespace brask {

Error PosixPrograms::Become(const std::string& program, std::span<const std::string> arguments) {
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    ::execvp(program.c_str(), pointers.data());
    return posix::LastError();
}

bool PosixPrograms::ErrorOutputIsTerminal() const { return ::isatty(STDERR_FILENO) == 1; }

}  // namespace brask
