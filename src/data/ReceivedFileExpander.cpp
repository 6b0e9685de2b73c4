#include "data/ReceivedFileExpander.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace brask {
namespace {

constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
constexpr unsigned char kFirstRepeat = 128;
// Repeats are copied in pieces of a fixed size, which the compiler turns into a few moves; what is
// copied too much is overwritten by what comes next.
constexpr std::size_t kPiece = 32;
// room behind a line for the longest repeat
constexpr std::size_t kRoom = 128 + kPiece;

}  // namespace

ReceivedFileExpander::ReceivedFileExpander(Files& files) : files_(files) {
    SetPreviousLine({});
    line_.Bytes.resize(kRoom);
}

void ReceivedFileExpander::SetPreviousLine(std::string_view line) {
    previous_.Bytes = line;
    previous_.Bytes.resize(line.size() + kRoom);
    previous_.Length = line.size();
}

Result<std::int64_t> ReceivedFileExpander::ExpandReceivedFile(
    const std::string& rawPath, const std::string& dataPath,
    const std::function<bool()>& keepGoing) {
    auto opened = files_.Open(rawPath);
    if (!opened.Ok()) return opened.Why();
    auto started = files_.Replace(dataPath);
    if (!started.Ok()) return started.Why();
    ReplacementFile& output = *started.Value();

    line_.Length = 0;
    lines_ = 0;
    instrumentSeen_ = false;
    pending_.clear();
    std::string block(kBlockSize, '\0');
    for (;;) {
        if (keepGoing && !keepGoing()) return Error{ECANCELED, "cancelled"};
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) break;
        Status expanded = ExpandBlock({block.data(), read.Value()}, output);
        if (!expanded.Ok()) return expanded.Why();
    }
    if (Status written = output.Write(pending_); !written.Ok()) return written.Why();
    // the stream may be the file to replace, which must not be open then
    opened.Value().reset();
    if (Status placed = output.Commit(); !placed.Ok()) return placed.Why();
    return lines_;
}

Status ReceivedFileExpander::ExpandBlock(std::string_view block, ReplacementFile& output) {
    for (const char c : block) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte == 0) continue;
        if (byte >= kFirstRepeat) {
            const std::size_t before = line_.Length;
            Repeat(byte - kFirstRepeat);
            // repeats may reach over the line end above
            if (line_.Length == before || line_.Bytes[line_.Length - 1] != '\n') continue;
        } else {
            if (line_.Length >= kLongestLine && byte != '\n') continue;
            line_.Bytes[line_.Length++] = c;
            if (line_.Length + kRoom > line_.Bytes.size()) {
                line_.Bytes.resize(2 * line_.Bytes.size());
            }
            if (byte != '\n') continue;
        }
        if (Status ended = EndLine(output); !ended.Ok()) return ended;
    }
    return {};
}

void ReceivedFileExpander::Repeat(std::size_t count) {
    // A repeat beyond the end of the line above stands for nothing; damaged streams hold such.
    if (line_.Length >= previous_.Length) return;
    count = std::min(count, previous_.Length - line_.Length);
    char* to = line_.Bytes.data() + line_.Length;
    const char* from = previous_.Bytes.data() + line_.Length;
    for (std::size_t copied = 0; copied < count; copied += kPiece) {
        std::memcpy(to + copied, from + copied, kPiece);
    }
    line_.Length += count;
    if (line_.Length + kRoom > line_.Bytes.size()) line_.Bytes.resize(2 * line_.Bytes.size());
}

Status ReceivedFileExpander::EndLine(ReplacementFile& output) {
    // What the link brings in front of the first header on its line is no part of the file.
    if (!instrumentSeen_) {
        const std::string_view line(line_.Bytes.data(), line_.Length);
        const auto header = line.find("INSTRUMENT:");
        if (header != std::string_view::npos) {
            instrumentSeen_ = true;
            std::memmove(line_.Bytes.data(), line_.Bytes.data() + header, line.size() - header);
            line_.Length -= header;
        }
    }
    // always two characters for the line end: a line that ends in a bare LF loses its last
    // character, as it does in every file that users have from this instrument
    pending_.append(line_.Bytes, 0, line_.Length < 2 ? 0 : line_.Length - 2);
    pending_ += "\r\n";
    ++lines_;
    // With its own line end, as received: repeats may reach over it.
    std::swap(line_, previous_);
    line_.Length = 0;
    if (pending_.size() < kBlockSize) return {};
    Status written = output.Write(pending_);
    pending_.clear();
    return written;
}

}  // namespace brask
