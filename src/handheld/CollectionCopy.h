// Copies data files of the handheld to the computer's directory for them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "handheld/HandheldReading.h"
#include "handheld/RetrievalParts.h"

namespace brask {

// A complete copy. The path is empty when there is none.
struct CopiedFile {
    std::string Path;          // on the handheld
    std::uint64_t Length = 0;  // bytes that were copied
};

// Of one file. Source and target are set only when the copy is complete and on disk.
struct CopyOutcome {
    CopiedFile Source;
    std::string Target;      // on the PC
    std::string Problem;     // what went wrong, in words; the copy may be complete all the same
    std::string Kept;        // where the file is that the copy has replaced, in words
    bool IsOneFile = false;  // source and target are one file: to be left alone
};

class CollectionCopy {
  public:
    CollectionCopy(const RetrievalParts& parts, MayGoOn mayGoOn)
        : parts_(parts), mayGoOn_(std::move(mayGoOn)) {}

    // Copies the file of this name from the first folder where it can be opened. The target appears
    // whole or not at all; one of other content that lies there is kept in the recovery folder
    // first. Errors of the handheld are shown as messages, those of the PC as a notice.
    CopyOutcome CopyToPc(const std::string& name);

  private:
    struct Opened {
        std::string Path;
        std::unique_ptr<HandheldFile> File;
    };

    // No file, and a message, when neither folder has one that can be opened.
    Opened Open(const std::string& name, CopyOutcome& outcome);
    // Sets `outcome.Kept`.
    ReadingOutcome CopyAndPlace(HandheldFile& file, const std::string& target,
                                CopyOutcome& outcome);
    void Copy(const Opened& opened, const std::string& target, CopyOutcome& outcome);
    // Says what went wrong where it is to be said; in words.
    std::string Report(const ReadingOutcome& reading, const std::string& target);
    void ShowMessage(const std::string& text);

    const RetrievalParts& parts_;
    MayGoOn mayGoOn_;
};

}  // namespace brask
