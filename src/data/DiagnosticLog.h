// The diagnostic log "VEKLog.Txt": one "[dd-mmm-yyyy hh:mm:ss] text" line an entry, cut to its last
// 30,000 bytes before it grows further. Nothing reads it back; it is best effort.
#pragma once

#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Files.h"

namespace brask {

class DiagnosticLog {
  public:
    // Where the log is cut, in bytes.
    static constexpr std::size_t kKeptBytes = 30000;

    DiagnosticLog(Files& files, const Clock& clock);

    // The whole path, for telling users where to look.
    const std::string& Path() const { return path_; }
    // Adds one entry with the local time. Never fails and never shows anything: an error in the log
    // must not hide the one that it is about. Line ends within the text become blanks.
    void WriteLog(std::string_view text);

  private:
    void CutToLastBytes();

    Files& files_;
    const Clock& clock_;
    std::string path_;
};

}  // namespace brask
