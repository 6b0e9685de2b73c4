#include "platform/posix/PosixPrograms.h"

#include <unistd.h>

#include <vector>

#include "platform/posix/PosixHandle.h"

namespace brask {

std::vector<std::string> PosixPrograms::CommandWords(std::span<char* const> arguments) const {
    // a program may be started without even its own name
    if (arguments.empty()) return {};
    return {arguments.begin() + 1, arguments.end()};
}

Error PosixPrograms::Become(const std::string& program, std::span<const std::string> arguments) {
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    // execvp wants pointers to bytes that may be changed, so the words are copied first
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    // Replacing this process needs no waiting for a child, and signals and the exit status need no
    // passing on. It returns only when it failed.
    ::execvp(program.c_str(), pointers.data());
    return posix::LastError();
}

bool PosixPrograms::ErrorOutputIsTerminal() const { return ::isatty(STDERR_FILENO) == 1; }

}  // namespace brask
