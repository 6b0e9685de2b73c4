// The storage of a handheld computer, as the link to it offers it.
//
// Paths are the handheld's own: they begin at its storage root with "\", which parts their names
// too; UTF-8; letter case does not matter. Errors carry the number of the system that they come
// from; those with a reason alone have the number 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/Result.h"

namespace brask {

// Whether an error says that there is no such file or folder. 2 is that on every system; 3 is the
// handheld's for a missing folder.
inline bool NothingThere(const Error& error) { return error.Number == 2 || error.Number == 3; }

// Whether an error says that a listing is at its end: 18 is the handheld's number. Its text comes
// in the user's language.
inline bool ListingAtEnd(const Error& error) { return error.Number == 18; }

// Whether an error says that the name is taken: 80 and 183 on a handheld, 17 for a folder.
inline bool NameTaken(const Error& error) {
    return error.Number == 17 || error.Number == 80 || error.Number == 183;
}

// A file of the handheld, open for reading from its start.
class HandheldFile {
  public:
    // Closes it, silently, when Close was not called.
    virtual ~HandheldFile() = default;

    // The next bytes, at most as many as the buffer takes; 0 at the end. After an error nobody
    // knows where the next read begins: open the file anew.
    virtual Result<std::size_t> Read(std::span<char> buffer) = 0;
    // Its length in bytes. Fewer bytes read mean that the link broke off without saying so.
    virtual Result<std::uint64_t> Size() = 0;
    // To be called once, last.
    virtual Status Close() = 0;
};

class HandheldAccess {
  public:
    // Lets go of the handheld.
    virtual ~HandheldAccess() = default;

    // Begins the link anew; whether that could be asked for, not whether a handheld answers.
    virtual Status Initialise() = 0;
    // Waits at most 100 ms for the link to come up. True when it has just done so and is to be
    // asked again; false when the time passed or the user did something meanwhile.
    virtual bool LinkHasComeUp() = 0;
    // Whether there is something to read from. A link that can tell only by trying says yes.
    virtual bool Connected() = 0;

    // The name of the first file (no folder) that matches a path whose last part may be "*.csv";
    // an error that is ListingAtEnd, or whose text holds "no more files", when none does. Names
    // hold no "\".
    virtual Result<std::string> FindFirst(const std::string& pattern) = 0;
    // The next one of the last FindFirst.
    virtual Result<std::string> FindNext() = 0;

    // Opens an existing file; others may read it meanwhile.
    virtual Result<std::unique_ptr<HandheldFile>> Open(const std::string& path) = 0;
    // Whether a file of the handheld is this one of the PC (a native path): a folder that stands
    // for a handheld may hold links, or be one. Copying it there and deleting it would lose it.
    virtual bool IsFileOfPc(const std::string& /*path*/, const std::string& /*native*/) {
        return false;
    }
    // Removes one file.
    virtual Status Delete(const std::string& path) = 0;
    // Gives a file another path. An existing target is refused.
    virtual Status Move(const std::string& from, const std::string& to) = 0;
    // Makes one folder whose parent exists.
    virtual Status MakeFolder(const std::string& path) = 0;
};

}  // namespace brask
