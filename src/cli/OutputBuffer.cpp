#include "cli/OutputBuffer.h"

#include <cerrno>
#include <system_error>

#include "data/NumberText.h"

namespace brask {
namespace {

Error LastWriteError() {
    const int number = errno;
    return {number, std::generic_category().message(number)};
}

}  // namespace

OutputBuffer::OutputBuffer(std::FILE* out) : out_(out) {}

void OutputBuffer::WriteNumber(double value) { Write(FormatNumber(value)); }

void OutputBuffer::WriteInteger(std::int64_t value) { Write(std::to_string(value)); }

void OutputBuffer::Flush() {
    begun_ = begun_ || !pending_.empty();
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
