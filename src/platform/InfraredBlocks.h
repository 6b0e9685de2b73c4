// Gives what one connection receives the form that the seam promises: blocks that begin with one
// control byte.
//
// Two things stand against it. When more bytes wait than one receive takes, the receive ends in the
// middle of a block and the next one begins with data; dropping that first byte as a control byte
// would lose a character and with it the whole transfer. And the first block of a connection may
// carry several control bytes: its first byte then is the count of those that follow.
#pragma once

#include <cstddef>
#include <string>

namespace brask {

class InfraredBlocks {
  public:
    // Takes the bytes of one receive; `full` when they filled the buffer, so that the block may go
    // on. The result has one control byte in front and may be a byte longer; it is empty when
    // nothing was received, and when a cut block goes on with nothing but control bytes.
    std::string Next(std::string received, bool full);

  private:
    bool first_ = true;
    bool cut_ = false;             // the last receive may have ended in the middle of a block
    std::size_t controlLeft_ = 0;  // control bytes that the cut left for the next receive
};

}  // namespace brask
