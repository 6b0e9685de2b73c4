// The folder ".recovery" under the data root, which keeps what would otherwise vanish: every stream
// that was received (the newest 20), a file about to be replaced by one of other content, a file
// about to be deleted on the handheld without a complete copy. "index.txt" there says what each is.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/DataDirectories.h"
#include "data/RecoveryIndex.h"
#include "data/Sha256.h"
#include "platform/Clock.h"
#include "platform/Files.h"

namespace brask {

class RecoveryFolder {
  public:
    static constexpr std::size_t kKeptStreams = 20;

    // The folder follows the data root of `directories` and is made when something is first kept.
    RecoveryFolder(Files& files, const Clock& clock, const DataDirectories& directories);

    // The whole path, without a separator at its end.
    std::string Path() const;

    // One file on its way into the folder, for bytes that do not lie on the PC yet. Destroying it
    // without Keep drops what was written.
    class Entry {
      public:
        Entry(RecoveryFolder& folder, KeptFile file, std::unique_ptr<ReplacementFile> target);
        ~Entry();
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

        Status Write(std::string_view bytes);
        // To be called once, last. Ok means: bytes and description are on disk, and stay there
        // through a crash; the result is the kept file's path. On failure nothing is kept.
        Result<std::string> Keep();

      private:
        RecoveryFolder& folder_;
        KeptFile file_;
        std::unique_ptr<ReplacementFile> target_;
        Sha256 sum_;
        bool kept_ = false;
    };
    // Takes a free name that is made of `name`, cleaned, and the date. `origin` is the path to tell
    // people where the bytes come from.
    Result<std::unique_ptr<Entry>> Begin(KeptKind kind, const std::string& name,
                                         const std::string& origin);

    // Copies a received stream with the line that stood above its first one when it began (bytes,
    // line end included), so that expanding can be repeated exactly. Streams beyond the newest 20
    // go. The result is the copy's path, or why there is none.
    Result<std::string> KeepStream(const std::string& rawPath, std::string_view previousLine);
    // To be called before bytes with the check sum `newSha256` replace the file at `path`: keeps a
    // copy of that file when it exists and holds other bytes. The result is the copy's path, empty
    // when there was nothing to keep. On failure the file must not be replaced.
    Result<std::string> KeepReplaced(const std::string& path, const std::string& newSha256);

    // What the index knows, the newest last; empty when it cannot be read.
    std::vector<KeptFile> List() const;
    // The newest kept stream of exactly these bytes, wherever the file lies; nothing when none is.
    std::optional<KeptFile> FindStream(const std::string& rawPath) const;

  private:
    std::string PathOf(const std::string& name) const;
    Result<std::unique_ptr<FileLock>> Lock();
    // A name that nobody else has, taken by an empty file.
    Result<std::string> ClaimName(const std::string& name);
    Result<std::string> KeepCopy(KeptFile file, const std::string& source);
    Result<std::unique_ptr<Entry>> BeginEntry(KeptFile file, const std::string& name);
    Status Describe(const KeptFile& file);
    Result<RecoveryIndex> ReadIndex() const;

    Files& files_;
    const Clock& clock_;
    const DataDirectories& directories_;
};

}  // namespace brask
