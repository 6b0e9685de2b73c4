#include "data/DiagnosticLog.h"

#include <algorithm>

#include "data/DateTime.h"

namespace brask {

DiagnosticLog::DiagnosticLog(Files& files, const Clock& clock)
    : files_(files),
      clock_(clock),
      path_(files.Folder(KnownFolder::kLog) + files.Separator() + "VEKLog.Txt") {}

void DiagnosticLog::WriteLog(std::string_view text) {
    // without a place for the log there is nobody left to tell
    if (!files_.MakeDirectoryChain(files_.Folder(KnownFolder::kLog)).Ok()) return;
    // Cut before adding: the newest entry is always whole.
    CutToLastBytes();
    std::string line(text);
    // one entry a line, whatever a path brought along
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    const std::string entry = "[" + FormatReadingTime(clock_.Now()) + "] " + line + "\r\n";
    static_cast<void>(files_.Append(path_, entry).Ok());
}

void DiagnosticLog::CutToLastBytes() {
    if (!files_.Exists(path_)) return;
    auto opened = files_.Open(path_);
    if (!opened.Ok() || opened.Value()->Size() <= kKeptBytes) return;
    std::string kept;
    std::string block(std::size_t{64} * 1024, '\0');
    for (;;) {
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return;
        if (read.Value() == 0) break;
        kept.append(block, 0, read.Value());
        // so that a log of gigabytes, left by whatever, takes no more memory than its end
        if (kept.size() > kKeptBytes) kept.erase(0, kept.size() - kKeptBytes);
    }
    // not every system replaces a file that is open
    opened.Value().reset();
    static_cast<void>(WriteWholeFile(files_, path_, kept).Ok());
}

}  // namespace brask
