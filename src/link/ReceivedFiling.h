// What happens to a stream that was received: it is expanded, filed in the instrument's directory
// under a name made of instrument and time, and checked line by line.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "link/LinkNeeds.h"
#include "link/ReceivedFileCheck.h"

namespace brask {

struct FiledDownload {
    // Whole and not empty: the file may be opened and the instrument be cleared.
    bool Accepted = false;
    // Where the data file lies; a rejected one stays there, too. Empty when it could not be filed.
    std::string File;
    std::int64_t Counted = 0;        // data lines met; all of them in an accepted file
    std::optional<double> Expected;  // what the file promises; nothing where it does not
};

class ReceivedFiling {
  public:
    // `keepGoing` lets events run and says whether to go on.
    ReceivedFiling(const LinkSystem& system, const LinkData& data, std::function<bool()> keepGoing);

    // Does all of it, with the messages of a download; progress is shown meanwhile. Every
    // rejection is logged, also one that has a message. The raw file stays. When Accepted, the data
    // file and its directory are on disk for good.
    FiledDownload VerifyAndFile(const std::string& rawPath);

  private:
    std::string ExpandedPath(const std::string& rawPath) const;
    std::optional<std::string> Expand(const std::string& rawPath);
    std::string TargetFor(const std::string& expandedPath) const;
    bool Place(const std::string& expandedPath, const std::string& target);
    bool Check(FiledDownload& filed);
    bool Judge(const CheckedFile& checked, const std::string& path);
    bool Reject(const std::string& message, const std::string& path);
    void Log(const TextRow& row, std::initializer_list<std::string_view> arguments);

    LinkSystem system_;
    LinkData data_;
    std::function<bool()> keepGoing_;
};

// "K42 INSTRUMENT mm_dd_yyyy_hh_mm_ss.csv", safe as the name of a file whatever the text (bytes as
// received), at most 255 bytes with time and extension kept.
std::string ReceivedFileName(std::string_view instrument, const CivilDateTime& now);

}  // namespace brask
