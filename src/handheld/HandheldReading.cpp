#include "handheld/HandheldReading.h"

#include <string>

#include "handheld/HandheldTexts.h"

namespace brask {
namespace {

// One round trip to the handheld each.
constexpr std::size_t kBlock = 4096;
// After so many bytes the length is asked for, and so many more than that a file may have grown
// by then; one that never ends would fill the disk.
constexpr std::uint64_t kAskEvery = std::uint64_t{4} << 20U;

bool IsEndless(HandheldFile& file, std::uint64_t length) {
    if (length < kAskEvery || length % kAskEvery >= kBlock) return false;
    const auto size = file.Size();
    return size.Ok() && length > size.Value() + kAskEvery;
}

}  // namespace

ReadingOutcome ReadThrough(HandheldFile& file, const Texts& texts,
                           const std::function<Status(std::string_view)>& take,
                           const std::function<bool()>& mayGoOn) {
    using enum ReadingOutcome::End;
    std::string block(kBlock, '\0');
    std::uint64_t length = 0;
    for (;;) {
        if (!mayGoOn()) return {kStopped, {0, texts.Find(handheld_texts::kRunStopped)}};
        const auto read = file.Read(block);
        if (!read.Ok()) return {kReadFailed, read.Why()};
        if (read.Value() == 0) break;
        length += read.Value();
        if (IsEndless(file, length)) return {kShort, {0, texts.Find(handheld_texts::kEndless)}};
        const Status taken = take({block.data(), read.Value()});
        if (!taken.Ok()) return {kNotTaken, taken.Why()};
    }
    // Asked at the end: a file that is still being written has grown meanwhile. Without an answer
    // nobody can say that the copy is complete.
    const auto size = file.Size();
    if (!size.Ok()) return {kShort, size.Why()};
    if (length < size.Value()) return {kShort, {0, texts.Find(handheld_texts::kShortCopy)}};
    return {kComplete, {}, length};
}

}  // namespace brask
