// k42sim as a process of its own, with the readings of the April file, listening on a free port of
// the loopback address.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "StartProgram.h"
#include "platform/Tcp.h"

namespace brask {

class RunningSimulator {
  public:
    // Starts it with these options besides; returns when it listens. It ends, by force when it
    // must, with this object.
    explicit RunningSimulator(std::vector<std::string> options) {
        options.insert(options.end(), {"--listen", "127.0.0.1:0", "--file",
                                       BRASK_SAMPLES "/air-quality-april.csv"});
        Process = StartProgram("k42sim", options);
        const std::string line = Process->ReadLine();
        if (line.rfind("listening on 127.0.0.1:", 0) != 0) return;
        Port = ParseTcpAddress(line.substr(13)).value().Port;
    }

    // What programs reach it by.
    std::string Address() const { return "tcp:127.0.0.1:" + std::to_string(Port); }
    // Reads what it tells up to a line that holds this text; false when it ended before.
    bool Tells(const std::string& text) const {
        for (std::string line; !(line = Process->ReadLine()).empty();) {
            if (line.find(text) != std::string::npos) return true;
        }
        return false;
    }

    std::unique_ptr<RunningProgram> Process;
    std::uint16_t Port = 0;  // 0 when it did not start
};

}  // namespace brask
