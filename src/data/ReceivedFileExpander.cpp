#include "data/ReceivedFileExpander.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace brask {
namespace {

constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
constexpr std::size_t kFirstBuffer = std::size_t{256} * 1024;
constexpr unsigned char kFirstRepeat = 128;
// Repeats are copied in pieces of a fixed size, which the compiler turns into a few moves; what is
// copied too much is overwritten by what comes next.
constexpr std::size_t kPiece = 32;
// what one byte of a stream can need behind a line
constexpr std::size_t kRoom = 128 + kPiece;

// In front of the lines, so that there always is a last character to look at.
constexpr std::size_t kFront = 1;

// Copies `count` characters of the line above, from a column on; how many there were. A repeat
// beyond the end of that line stands for nothing; damaged streams hold such.
std::size_t Repeat(std::string_view previous, std::size_t column, std::size_t count, char* to) {
    if (column >= previous.size()) return 0;
    count = std::min(count, previous.size() - column);
    const char* const from = previous.data() + column;
    for (std::size_t copied = 0; copied < count; copied += kPiece) {
        // by way of a piece of its own, since the two overlap where the line above is short
        char piece[kPiece];
        std::memcpy(piece, from + copied, kPiece);
        std::memcpy(to + copied, piece, kPiece);
    }
    return count;
}

}  // namespace

ReceivedFileExpander::ReceivedFileExpander(Files& files)
    : files_(files), lines_(kFirstBuffer, '\0') {
    SetPreviousLine({});
}

void ReceivedFileExpander::SetPreviousLine(std::string_view line) {
    previousLength_ = line.size();
    apart_ = line;
    apart_.resize(line.size() + kRoom);
    previousApart_ = true;
}

Result<std::int64_t> ReceivedFileExpander::ExpandReceivedFile(
    const std::string& rawPath, const std::string& dataPath,
    const std::function<bool()>& keepGoing) {
    auto opened = files_.Open(rawPath);
    if (!opened.Ok()) return opened.Why();
    auto started = files_.Replace(dataPath);
    if (!started.Ok()) return started.Why();
    ReplacementFile& output = *started.Value();

    SetPreviousLine(PreviousLine());
    written_ = line_ = end_ = kFront;
    lineCount_ = 0;
    instrumentSeen_ = false;
    std::string block(kBlockSize, '\0');
    for (;;) {
        if (keepGoing && !keepGoing()) return Error{ECANCELED, "cancelled"};
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) break;
        Status expanded = ExpandBlock({block.data(), read.Value()}, output);
        if (!expanded.Ok()) return expanded.Why();
    }
    if (Status written = MakeRoom(output); !written.Ok()) return written.Why();
    // the stream may be the file to replace, which must not be open then
    opened.Value().reset();
    if (Status placed = output.Commit(); !placed.Ok()) return placed.Why();
    return lineCount_;
}

Status ReceivedFileExpander::ExpandBlock(std::string_view block, ReplacementFile& output) {
    // Taken out of the object, or each character written would make them be fetched again.
    char* line = lines_.data() + line_;
    char* to = lines_.data() + end_;
    char* limit = Limit();
    const char* previous = Previous();
    for (const char c : block) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte == 0) continue;
        if (byte < kFirstRepeat) {
            *to++ = c;
        } else {
            const auto column = static_cast<std::size_t>(to - line);
            to += Repeat({previous, previousLength_}, column, byte - kFirstRepeat, to);
        }
        // Also for a repeat; it may reach over the line end above.
        if (to < limit && to[-1] != '\n') continue;
        end_ = static_cast<std::size_t>(to - lines_.data());
        if (end_ > line_ && to[-1] == '\n') EndLine();
        end_ = std::min(end_, line_ + kLongestLine);
        if (end_ + kRoom >= lines_.size()) {
            if (Status made = MakeRoom(output); !made.Ok()) return made;
        }
        line = lines_.data() + line_;
        to = lines_.data() + end_;
        limit = Limit();
        previous = Previous();
    }
    end_ = static_cast<std::size_t>(to - lines_.data());
    return {};
}

// Where the line being built has to be looked at: no room behind it, or too long.
char* ReceivedFileExpander::Limit() {
    return lines_.data() + std::min(lines_.size() - kRoom, line_ + kLongestLine);
}

void ReceivedFileExpander::EndLine() {
    char* const line = lines_.data() + line_;
    std::size_t length = end_ - line_;
    // What the link brings in front of the first header on its line is no part of the file.
    if (!instrumentSeen_) {
        const auto header = std::string_view(line, length).find("INSTRUMENT:");
        if (header != std::string_view::npos) {
            instrumentSeen_ = true;
            length -= header;
            std::memmove(line, line + header, length);
        }
    }
    ++lineCount_;
    if (length >= 2 && line[length - 2] == '\r') {
        previousApart_ = false;
        previousLength_ = length;
        line_ += length;
    } else {
        // Always two characters for the line end: a line that ends in a bare LF loses its last
        // character, as it does in every file that users have from this instrument. What repeats
        // refer to is the line as received.
        SetPreviousLine({line, length});
        const std::size_t kept = length < 2 ? 0 : length - 2;
        line[kept] = '\r';
        line[kept + 1] = '\n';
        line_ += kept + 2;
    }
    end_ = line_;
}

// Hands the finished lines to the file and moves what is still needed to the front.
Status ReceivedFileExpander::MakeRoom(ReplacementFile& output) {
    Status written = output.Write(std::string_view(lines_).substr(written_, line_ - written_));
    const std::size_t from = previousApart_ ? line_ : line_ - previousLength_;
    std::memmove(lines_.data() + kFront, lines_.data() + from, end_ - from);
    line_ -= from - kFront;
    end_ -= from - kFront;
    written_ = line_;
    if (end_ > lines_.size() / 2) lines_.resize(2 * lines_.size());
    return written;
}

}  // namespace brask
