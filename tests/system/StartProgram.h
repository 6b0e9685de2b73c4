// Starting a built program and waiting for it, which each system does in its own way.
#pragma once

#include <memory>
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

// A program that runs beside the test; destroying it ends the program by force when it still runs.
class RunningProgram {
  public:
    virtual ~RunningProgram() = default;

    // The next line of its standard output, without the line end; empty at the end.
    virtual std::string ReadLine() = 0;
    // What Ctrl+C does to a program.
    virtual void Interrupt() const = 0;
    // Waits for its end; the exit status, -1 when a signal ended it.
    virtual int ExitStatus() = 0;
};

// Starts the program of this name that the build made. Never null; one that could not be started
// has no output and ends with a status of its own.
std::unique_ptr<RunningProgram> StartProgram(const std::string& program,
                                             const std::vector<std::string>& words);

// Programs that start from now on find what a new user finds: no settings, no log; in this home
// where the system lets us choose it.
void LiveIn(const std::string& home);

// Where programs that live in this home write their log.
std::string LogPath(const std::string& home);

// The system's number of a refused connection.
int RefusedConnection();

}  // namespace brask
