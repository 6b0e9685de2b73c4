#include "platform/Files.h"

#include <algorithm>
#include <cerrno>

namespace brask {

std::string BaseName(const Files& files, const std::string& path) {
    // "/" parts a path everywhere: Windows takes it too, and paths typed in a shell often hold it.
    const char separators[] = {'/', files.Separator(), '\0'};
    const auto last = path.find_last_of(separators);
    return last == std::string::npos ? path : path.substr(last + 1);
}

Result<std::string> ReadWholeFile(Files& files, const std::string& path, std::size_t limit) {
    auto opened = files.Open(path);
    if (!opened.Ok()) return opened.Why();
    // one byte more than it should hold, to see the end without another round
    // Size() may be 0 or wrong for files that the system makes up, so the end is found by reading.
    std::string content(std::min<std::uint64_t>(limit, opened.Value()->Size()) + 1, '\0');
    std::size_t length = 0;
    for (;;) {
        if (length > limit) return Error{EFBIG, "the file is larger than expected"};
        // never beyond the limit and one byte, whatever the file claims or grows to
        if (length == content.size()) content.resize(std::min(limit + 1, 2 * length));
        const auto read = opened.Value()->Read(std::span<char>(content).subspan(length));
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) break;
        length += read.Value();
    }
    content.resize(length);
    return content;
}

Status CopyAndCommit(InputFile& source, ReplacementFile& target, std::size_t blockSize) {
    std::string block(blockSize, '\0');
    for (;;) {
        const auto read = source.Read(block);
        if (!read.Ok()) return read.Why();
        // committed only once the source was read to its end: a read error keeps the old target
        if (read.Value() == 0) return target.Commit();
        Status written = target.Write({block.data(), read.Value()});
        if (!written.Ok()) return written;
    }
}

Status WriteWholeFile(Files& files, const std::string& path, std::string_view bytes) {
    auto started = files.Replace(path);
    if (!started.Ok()) return started.Why();
    if (Status written = started.Value()->Write(bytes); !written.Ok()) return written;
    return started.Value()->Commit();
}

}  // namespace brask
