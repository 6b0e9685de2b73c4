// k42sim as a process of its own, listening on a free port of the loopback address.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "StartProgram.h"

namespace brask {

class RunningSimulator {
  public:
    // Starts it with these options besides --listen; returns when it listens. It ends, by force
    // when it must, with this object.
    explicit RunningSimulator(const std::vector<std::string>& options);

    // 0 when it did not start.
    std::uint16_t Port() const { return port_; }
    // What programs reach it by.
    std::string Address() const { return "tcp:127.0.0.1:" + std::to_string(port_); }
    // Reads what it tells up to a line that holds this text; false when it ended before.
    bool Tells(const std::string& text);
    // Ctrl+C.
    void Interrupt() const { process_->Interrupt(); }
    // Waits for its end; the exit status, -1 when a signal ended it.
    int ExitStatus() { return process_->ExitStatus(); }

  private:
    std::unique_ptr<RunningProgram> process_;
    std::uint16_t port_ = 0;
};

}  // namespace brask
