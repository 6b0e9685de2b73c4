// Deletes collections on the handheld so that no byte is lost by it. A file without a complete copy
// on the PC is read into the recovery folder first; one that cannot be read is moved to the folder
// "VEK kept" of the handheld instead of being deleted.
#pragma once

#include <string>
#include <vector>

#include "handheld/CollectionCopy.h"
#include "handheld/HandheldReading.h"
#include "handheld/RetrievalParts.h"

namespace brask {

class SafeDeletion {
  public:
    SafeDeletion(const RetrievalParts& parts, MayGoOn mayGoOn)
        : parts_(parts), mayGoOn_(std::move(mayGoOn)) {}

    // Deletes the data file of this name and its companion: in the first folder, and in the second
    // when the companion was not deleted in the first. `copied` is what a complete copy was
    // just made of. It counts as not copied when its length has changed since. Ok when a data file
    // is gone, and that one if any; a missing companion is no failure. What is also the PC's copy
    // under another path stays.
    Status DeleteCollection(const std::string& name, const CopiedFile& copied);

    // Where bytes of the collections of this name were kept so far, in words.
    std::vector<std::string> NotesOf(const std::string& name) const;

  private:
    struct Note {
        std::string Path;
        std::string Text;
    };

    Status DeleteOne(const std::string& path, const CopiedFile& copied);
    // Whether the file is still what was copied, as far as its length tells.
    bool StillAsCopied(const CopiedFile& copied);
    // The kept file's path.
    Result<std::string> SaveOnce(const std::string& path);
    Status MoveAside(const std::string& path);
    void Remember(const std::string& path, const std::string& text);

    const RetrievalParts& parts_;
    MayGoOn mayGoOn_;
    std::vector<Note> notes_;
};

}  // namespace brask
