// Files and folders as the program needs them. Paths are native, UTF-8. Every call translates the
// system's error at once; nothing throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Result.h"

namespace brask {

// A regular file open for reading from its start.
class InputFile {
  public:
    virtual ~InputFile() = default;

    // Fills the buffer from where the last read ended; fewer bytes only at the end, 0 there. An
    // error leaves it open how much of the buffer was filled; callers give the whole call up.
    virtual Result<std::size_t> Read(std::span<char> buffer) = 0;
    // Its length in bytes when it was opened; it may have grown or shrunk since. Good for estimates
    // and progress, never as the number of bytes to expect.
    virtual std::uint64_t Size() const = 0;
};

// A file being written beside the place that it will take. Until Commit returns Ok the old file
// stands untouched; destroying it without Commit drops what was written.
class ReplacementFile {
  public:
    virtual ~ReplacementFile() = default;

    // Bytes are collected, so that many small writes cost little; a full disk may therefore show
    // only at a later Write or at Commit.
    virtual Status Write(std::string_view bytes) = 0;
    // Flushes to disk, renames over the target, flushes the directory. To be called once, last, and
    // with the target closed: Windows does not replace a file that is open.
    // When it fails the target still holds the old file, unless only the last flush of the
    // directory failed, when the new one stands but may not survive a power cut.
    virtual Status Commit() = 0;
};

// Held by at most one process at a time; dies with its holder. Destroying the object lets go of the
// lock.
class FileLock {
  public:
    virtual ~FileLock() = default;
};

// Folders whose place the system knows. Named by what they are for, so that each system can answer
// with its own conventions.
enum class KnownFolder {
    kUserDocuments,     // of this user
    kSharedDocuments,   // of all users; the same as the user's own where the system has none
    kDocumentsMissing,  // where data goes when the system names no documents folder
    kSettings,          // per-user settings
    kState,             // per-user state, logs
    kLog,               // the folder of the diagnostic log
};

// Callers tell few errors apart by number: ENOENT (nothing there yet) and EFBIG; all others are
// only shown.
class Files {
  public:
    virtual ~Files() = default;

    // Opens a regular file. A directory, pipe or device is refused at once, never waited for.
    virtual Result<std::unique_ptr<InputFile>> Open(const std::string& path) = 0;
    // Starts replacing (or creating) the file at path; keeps its permissions. A link is followed.
    virtual Result<std::unique_ptr<ReplacementFile>> Replace(const std::string& path) = 0;
    // Adds bytes at the end of a file, which is created when missing.
    virtual Status Append(const std::string& path, std::string_view bytes) = 0;
    // Has what was appended to a file, and its name, written to disk; survives a power cut when Ok.
    virtual Status Flush(const std::string& path) = 0;
    // A new empty file of a name that nobody else has; the caller removes it. Lies in the system's
    // temporary directory; the result is its full path. An error's reason begins with that
    // directory, where the system names one.
    virtual Result<std::string> CreateTemporary(const std::string& namePrefix) = 0;
    // Copies byte for byte and durably; refuses a target that exists, with the system's number.
    virtual Status CopyToNew(const std::string& source, const std::string& target) = 0;
    // Renames, replacing an existing target. Fails across file systems. For that case FilePlacing
    // copies and removes instead.
    virtual Status Move(const std::string& source, const std::string& target) = 0;
    // Removes one file; a missing one is an error, a directory is not removed.
    virtual Status Remove(const std::string& path) = 0;
    // Makes one directory whose parent exists; an existing one is an error.
    virtual Status MakeDirectory(const std::string& path) = 0;
    // Makes a directory with all its parents; Ok when it exists already.
    virtual Status MakeDirectoryChain(const std::string& path) = 0;

    // What cannot be looked at (no permission, a broken link) counts as not there.
    virtual bool Exists(const std::string& path) const = 0;
    virtual bool IsDirectory(const std::string& path) const = 0;
    // Whether two paths lead to one existing file, by whatever links.
    virtual bool SameFile(const std::string& a, const std::string& b) const = 0;
    // Waits for the lock on this path (at most two seconds); the file is created and stays. A
    // holder that crashed holds nothing, so there is no stale lock to clean up. The file itself is
    // left behind on purpose: removing it would let two programs lock two files of one name.
    virtual Result<std::unique_ptr<FileLock>> Lock(const std::string& path) = 0;

    // Without a separator at its end; empty when the system knows none. Names the folder; it need
    // not exist yet.
    virtual std::string Folder(KnownFolder folder) const = 0;
    // The absolute form of a path, without "." and "..", links not resolved.
    virtual std::string Absolute(const std::string& path) const = 0;
    // What stands between the parts of a path.
    virtual char Separator() const = 0;
};

// The text after the last separator ("/" counts everywhere, "\" where it is the separator); the
// whole path when there is none.
std::string BaseName(const Files& files, const std::string& path);

// The whole content of a file of at most `limit` bytes; a longer one fails with EFBIG. For files of
// a known small size, such as settings: a device or a file put there by mistake cannot fill the
// memory.
Result<std::string> ReadWholeFile(Files& files, const std::string& path, std::size_t limit);

// Copies all that is left of a file into one that is being written, in blocks of `blockSize` bytes,
// and commits it.
Status CopyAndCommit(InputFile& source, ReplacementFile& target, std::size_t blockSize);

// Replaces a file by these bytes in one durable step. A crash at any moment leaves the old content
// or the new one, never a mixture.
Status WriteWholeFile(Files& files, const std::string& path, std::string_view bytes);

}  // namespace brask
