// k42sim as a process of its own, listening on a free port of the loopback address.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

namespace brask {

class RunningSimulator {
  public:
    // Starts it with these options besides --listen; returns when it listens.
    explicit RunningSimulator(const std::vector<std::string>& options);
    // Ends it by force when it still runs.
    ~RunningSimulator();
    RunningSimulator(const RunningSimulator&) = delete;
    RunningSimulator& operator=(const RunningSimulator&) = delete;

    // 0 when it did not start.
    std::uint16_t Port() const { return port_; }
    // What programs reach it by.
    std::string Address() const { return "tcp:127.0.0.1:" + std::to_string(port_); }
    // Reads what it tells up to a line that holds this text; false when it ended before.
    bool Tells(const std::string& text);
    void Signal(int signal) const;
    // Waits for its end; the exit status, -1 when a signal ended it.
    int ExitStatus();

  private:
    // The next line; empty at the end.
    std::string ReadLine();

    pid_t process_ = 0;
    int output_ = -1;
    std::uint16_t port_ = 0;
};

}  // namespace brask
