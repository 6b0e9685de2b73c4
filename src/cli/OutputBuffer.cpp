#include "cli/OutputBuffer.h"

#include <cerrno>
#include <charconv>
#include <system_error>

namespace brask {
namespace {

Error LastWriteError() {
    const int number = errno;
    return {number, std::generic_category().message(number)};
}

}  // namespace

OutputBuffer::OutputBuffer(std::FILE* out) : out_(out) {}

void OutputBuffer::WriteNumber(double value) {
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, value);
    Write({text, static_cast<std::size_t>(result.ptr - text)});
}

void OutputBuffer::WriteInteger(std::int64_t value) {
    char text[24];
    const auto result = std::to_chars(text, text + sizeof text, value);
    Write({text, static_cast<std::size_t>(result.ptr - text)});
}

void OutputBuffer::Flush() {
    if (outcome_.Ok() && std::fwrite(pending_.data(), 1, pending_.size(), out_) < pending_.size()) {
        outcome_ = LastWriteError();
    }
    pending_.clear();
}

Status OutputBuffer::Finish() {
    Flush();
    if (outcome_.Ok() && std::fflush(out_) != 0) outcome_ = LastWriteError();
    return outcome_;
}

}  // namespace brask
