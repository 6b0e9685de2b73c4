#include "RunningSimulator.h"

#include "platform/Tcp.h"

namespace brask {

RunningSimulator::RunningSimulator(const std::vector<std::string>& options) {
    std::vector<std::string> words{"--listen", "127.0.0.1:0"};
    words.insert(words.end(), options.begin(), options.end());
    process_ = StartProgram("k42sim", words);
    const std::string line = process_->ReadLine();
    if (line.rfind("listening on ", 0) != 0) return;
    const auto address = ParseTcpAddress(line.substr(13));
    if (address && address->Host == "127.0.0.1") port_ = address->Port;
}

bool RunningSimulator::Tells(const std::string& text) {
    for (;;) {
        const std::string line = process_->ReadLine();
        if (line.find(text) != std::string::npos) return true;
        if (line.empty()) return false;
    }
}

}  // namespace brask
