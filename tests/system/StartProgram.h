// Starting a built program and waiting for it, which each system does in its own way.
#pragma once

#include <string>
#include <vector>

namespace brask {

// The files that standard output and error go to; standard input is empty.
struct ProgramStreams {
    std::string Out;
    std::string Error;
};

// Runs the program of this name that the build made; its exit status, -1 when a signal ended it.
int RunToEnd(const std::string& program, const std::vector<std::string>& words,
             const ProgramStreams& streams);

// Sends programs that start from now on to this home, where the system lets us.
void LiveIn(const std::string& home);

}  // namespace brask
