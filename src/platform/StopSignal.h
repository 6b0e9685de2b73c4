// The wish, from outside, that this program ends: Ctrl+C, a closed terminal window, a shutdown.
#pragma once

namespace brask {

// While such an object lives, the wish no longer ends the program by force; the program looks for
// it and ends in good order. Made by NativeSystem::WatchStopSignal; one at a time.
class StopSignal {
  public:
    virtual ~StopSignal() = default;

    // Stays true once it was.
    virtual bool Requested() = 0;
};

}  // namespace brask
