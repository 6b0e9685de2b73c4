#include "cli/OutputBuffer.h"

#include <cerrno>
#include <system_error>

#include "data/NumberText.h"

namespace brask {
namespace {

Error LastWriteError() {
    // kept at once: putting the text together may change errno
    const int number = errno;
    return {number, std::generic_category().message(number)};
}

}  // namespace

OutputBuffer::OutputBuffer(std::FILE* out) : out_(out) {}

void OutputBuffer::WriteNumber(double value) { Write(FormatNumber(value)); }

void OutputBuffer::WriteInteger(std::int64_t value) { Write(std::to_string(value)); }

void OutputBuffer::Flush() {
    // from the first piece on, another document would stand behind half of this one
    begun_ = begun_ || !pending_.empty();
    // Nothing is tried again after a failure: half a document with a gap would be worse than half.
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
