#include "StartProgram.h"

#include <sys/wait.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace brask {
namespace {

// For a shell that the program takes the place of.
std::string CommandOf(const std::string& program, const std::vector<std::string>& words) {
    std::string command = "exec '" BRASK_BIN "/" + program + "'";
    // in single quotes a shell changes nothing; no word of these tests holds one
    for (const std::string& word : words) command += " '" + word + "'";
    return command + " </dev/null";
}

int StatusOf(int state) { return WIFEXITED(state) ? WEXITSTATUS(state) : -1; }

class Child final : public RunningProgram {
  public:
    // The command tells the number of its process first.
    explicit Child(const std::string& command)
        : output_(popen(command.c_str(), "r")), process_(std::stoi(Child::ReadLine())) {}
    ~Child() override {
        if (output_ == nullptr) return;
        kill(process_, SIGKILL);
        pclose(output_);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    std::string ReadLine() override {
        std::string line;
        for (int c = 0; (c = std::fgetc(output_)) != EOF && c != '\n';) {
            line += static_cast<char>(c);
        }
        return line;
    }
    bool Interrupt() const override { return kill(process_, SIGINT) == 0; }
    int ExitStatus() override {
        // closing the pipe before would end a program that still writes
        while (std::fgetc(output_) != EOF) continue;
        return StatusOf(pclose(std::exchange(output_, nullptr)));
    }

  private:
    std::FILE* output_;
    pid_t process_;
};

}  // namespace

std::unique_ptr<RunningProgram> StartProgram(const std::string& program,
                                             const std::vector<std::string>& words) {
    return std::make_unique<Child>("echo $$; " + CommandOf(program, words));
}

int RunToEnd(const std::string& program, const std::vector<std::string>& words,
             const ProgramStreams& streams) {
    const std::string command = CommandOf(program, words);
    return StatusOf(
        std::system((command + " >'" + streams.Out + "' 2>'" + streams.Error + "'").c_str()));
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
