#include "data/TextLines.h"

#include <cstring>

namespace brask {

bool TextLines::Next(std::string_view& line) {
    std::size_t searched = 0;
    for (;;) {
        if (afterCarriageReturn_ && begin_ < end_) {
            if (buffer_[begin_] == '\n') ++begin_;
            afterCarriageReturn_ = false;
        }
        const char* const from = buffer_.data() + begin_;
        const std::size_t length = end_ - begin_;
        const void* const found = std::memchr(from + searched, '\r', length - searched);
        if (found != nullptr) {
            line = {from, static_cast<std::size_t>(static_cast<const char*>(found) - from)};
            begin_ += line.size() + 1;
            afterCarriageReturn_ = true;
            searched = 0;
            const bool whole = !dropping_ && line.size() <= kLongestLine;
            dropping_ = false;
            if (whole) return true;
            continue;
        }
        searched = length;
        if (length > kLongestLine) {
            dropping_ = true;
            begin_ = end_;
            searched = 0;
        }
        if (!Fill()) return LastLine(line);
    }
}

bool TextLines::LastLine(std::string_view& line) {
    line = {buffer_.data() + begin_, end_ - begin_};
    begin_ = end_;
    // half a line, where the file could not be read further, is none
    return !line.empty() && !dropping_ && outcome_.Ok();
}

// Reads more behind what is left; false at the end.
bool TextLines::Fill() {
    if (ended_) return false;
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    if (buffer_.size() - end_ < kFirstSize / 2) buffer_.resize(2 * buffer_.size());
    const auto read = file_.Read({buffer_.data() + end_, buffer_.size() - end_});
    if (!read.Ok()) outcome_ = read.Why();
    ended_ = !read.Ok() || read.Value() == 0;
    if (read.Ok()) end_ += read.Value();
    return !ended_;
}

}  // namespace brask
