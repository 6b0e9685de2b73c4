#include "data/ReceivedFileExpander.h"

#include <utility>

namespace brask {
namespace {

constexpr std::size_t kBlockSize = 30000;
constexpr unsigned char kFirstRepeat = 128;

}  // namespace

Result<std::int64_t> ReceivedFileExpander::ExpandReceivedFile(const std::string& rawPath,
                                                              const std::string& dataPath) {
    auto opened = files_.Open(rawPath);
    if (!opened.Ok()) return opened.Why();
    auto started = files_.Replace(dataPath);
    if (!started.Ok()) return started.Why();
    ReplacementFile& output = *started.Value();

    line_.clear();
    instrumentSeen_ = false;
    std::int64_t lines = 0;
    std::string block(kBlockSize, '\0');
    for (;;) {
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) break;
        for (std::size_t i = 0; i < read.Value(); ++i) {
            if (!TakeByte(static_cast<unsigned char>(block[i]))) continue;
            if (Status written = WriteLine(output); !written.Ok()) return written.Why();
            ++lines;
        }
    }
    // the stream may be the file to replace, which must not be open then
    opened.Value().reset();
    if (Status placed = output.Commit(); !placed.Ok()) return placed.Why();
    return lines;
}

bool ReceivedFileExpander::TakeByte(unsigned char byte) {
    if (byte == 0) return false;
    if (byte >= kFirstRepeat) {
        // A repeat beyond the end of the line above stands for nothing; damaged streams hold such.
        if (line_.size() < previousLine_.size()) {
            line_.append(previousLine_, line_.size(), byte - kFirstRepeat);
        }
    } else {
        line_ += static_cast<char>(byte);
    }
    return !line_.empty() && line_.back() == '\n';
}

Status ReceivedFileExpander::WriteLine(ReplacementFile& output) {
    // What the link brings in front of the first header on its line is no part of the file.
    const auto header = instrumentSeen_ ? std::string::npos : line_.find("INSTRUMENT:");
    if (header != std::string::npos) {
        instrumentSeen_ = true;
        line_.erase(0, header);
    }
    // always two characters for the line end: a line that ends in a bare LF loses its last
    // character, as it does in every file that users have from this instrument
    const std::size_t length = line_.size() < 2 ? 0 : line_.size() - 2;
    Status written = output.Write(line_.substr(0, length) + "\r\n");
    // With its own line end, as received: repeats may reach over it.
    previousLine_ = std::exchange(line_, {});
    return written;
}

}  // namespace brask
