// What one collecting of readings, from the instrument or from the handheld, shares with the main
// window, which waits for its end.
#pragma once

#include <cstdint>
#include <string>

namespace brask {

// The numbers are those that the log has always shown.
enum class CollectState : std::int32_t {
    kIdle = 0,
    kFinished = 1,    // with or without an accepted file
    kCancelled = 2,   // by the user, or given up
    kConnecting = 4,  // to the handheld
    kRunning = 5,
};

struct CollectSession {
    CollectState State = CollectState::kIdle;
    // The file to open afterwards, native, UTF-8; empty when there is none. While a download runs
    // it is the file of the raw stream.
    std::string ReceivedFile;
    // The first file copied off the handheld.
    std::string FirstCopied;
};

}  // namespace brask
