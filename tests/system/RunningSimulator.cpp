#include "RunningSimulator.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <utility>

#include "platform/Tcp.h"

namespace brask {

RunningSimulator::RunningSimulator(const std::vector<std::string>& options) {
    std::vector<std::string> words{"k42sim", "--listen", "127.0.0.1:0"};
    words.insert(words.end(), options.begin(), options.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0) return;
    process_ = fork();
    if (process_ == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execv(BRASK_BIN "/k42sim", pointers.data());
        _exit(127);
    }
    close(ends[1]);
    output_ = ends[0];
    const std::string line = ReadLine();
    if (line.rfind("listening on ", 0) != 0) return;
    const auto address = ParseTcpAddress(line.substr(13));
    if (address && address->Host == "127.0.0.1") port_ = address->Port;
}

RunningSimulator::~RunningSimulator() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    close(output_);
}

bool RunningSimulator::Tells(const std::string& text) {
    for (;;) {
        const std::string line = ReadLine();
        if (line.find(text) != std::string::npos) return true;
        if (line.empty()) return false;
    }
}

void RunningSimulator::Signal(int signal) const { kill(process_, signal); }

int RunningSimulator::ExitStatus() {
    int state = 0;
    waitpid(std::exchange(process_, 0), &state, 0);
    return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

std::string RunningSimulator::ReadLine() {
    std::string line;
    char c = 0;
    while (read(output_, &c, 1) == 1 && c != '\n') line += c;
    return line;
}

}  // namespace brask
