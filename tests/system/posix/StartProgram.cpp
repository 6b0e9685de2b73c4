#include "StartProgram.h"

#include <sys/wait.h>

#include <cstdlib>
#include <utility>

namespace brask {

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

}  // namespace brask
