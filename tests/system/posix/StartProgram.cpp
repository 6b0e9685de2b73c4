#include "StartProgram.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace brask {
namespace {

class Child final : public RunningProgram {
  public:
    Child(pid_t process, int output) : process_(process), output_(output) {}
    ~Child() override {
        if (process_ > 0) {
            kill(process_, SIGKILL);
            waitpid(process_, nullptr, 0);
        }
        close(output_);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    std::string ReadLine() override {
        std::string line;
        char c = 0;
        while (read(output_, &c, 1) == 1 && c != '\n') line += c;
        return line;
    }
    void Interrupt() const override { kill(process_, SIGINT); }
    int ExitStatus() override {
        int state = 0;
        waitpid(std::exchange(process_, 0), &state, 0);
        return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    }

  private:
    pid_t process_;
    int output_;
};

}  // namespace

std::unique_ptr<RunningProgram> StartProgram(const std::string& program,
                                             const std::vector<std::string>& words) {
    const std::string path = BRASK_BIN "/" + program;
    std::vector<std::string> all{path};
    all.insert(all.end(), words.begin(), words.end());
    std::vector<char*> pointers;
    pointers.reserve(all.size() + 1);
    for (std::string& word : all) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0) return std::make_unique<Child>(0, -1);
    const pid_t process = fork();
    if (process == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execv(path.c_str(), pointers.data());
        _exit(127);
    }
    close(ends[1]);
    return std::make_unique<Child>(process, ends[0]);
}

int RunToEnd(const std::string& program, const std::vector<std::string>& words,
             const ProgramStreams& streams) {
    std::string command = "exec '" BRASK_BIN "/" + program + "'";
    // in single quotes a shell changes nothing; no word of these tests holds one
    for (const std::string& word : words) command += " '" + word + "'";
    command += " </dev/null >'" + streams.Out + "' 2>'" + streams.Error + "'";
    const int state = std::system(command.c_str());
    return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

void LiveIn(const std::string& home) {
    for (const auto& [key, folder] :
         {std::pair("HOME", ""), std::pair("XDG_CONFIG_HOME", "/config"),
          std::pair("XDG_STATE_HOME", "/state")}) {
        setenv(key, (home + folder).c_str(), 1);
    }
    setenv("LC_ALL", "C.UTF-8", 1);
}

std::string LogPath(const std::string& home) { return home + "/state/VEK/VEKLog.Txt"; }

int RefusedConnection() { return ECONNREFUSED; }

}  // namespace brask
