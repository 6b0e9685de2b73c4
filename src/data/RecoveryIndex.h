// The index of the recovery folder: one line a kept file, UTF-8, its fields parted by tabs.
//
//     name TAB kind TAB date and time TAB bytes TAB SHA-256 TAB where it came from TAB line before
//
// "kind" is "stream", "replaced" or "handheld". Control characters and "%" are percent-encoded in
// every field, in the last one all bytes of 128 and more too. Lines that are none of these, such as
// comments, are kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brask {

// Why a file is kept.
enum class KeptKind {
    kStream,    // as an instrument sent it
    kReplaced,  // lay where a file of other content was about to be put
    kHandheld,  // was about to be deleted on the handheld without a complete copy
};

struct KeptFile {
    std::string Name;  // within the folder
    KeptKind Kind = KeptKind::kStream;
    std::string Date;  // "dd-mmm-yyyy hh:mm:ss", when it was put there
    std::uint64_t Bytes = 0;
    std::string Sha256;        // of its content, hexadecimal
    std::string Origin;        // the path that it had, on the PC or on the handheld
    std::string PreviousLine;  // streams: the line that repeats of the first line reach up to
};

class RecoveryIndex {
  public:
    // Never fails: a line that cannot be read is kept as it is.
    static RecoveryIndex Parse(std::string_view content);

    // In the order in which they were kept, the newest last.
    const std::vector<KeptFile>& Entries() const { return entries_; }
    void Add(KeptFile file) { entries_.push_back(std::move(file)); }
    // Leaves the newest `count` streams; the names of those taken out.
    std::vector<std::string> DropOldStreams(std::size_t count);
    // The content to write.
    std::string Text() const;

  private:
    std::vector<KeptFile> entries_;
    std::vector<std::string> otherLines_;
};

}  // namespace brask
