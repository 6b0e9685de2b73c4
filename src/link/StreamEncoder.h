// The compressed stream that the instrument answers with; ReceivedFileExpander is the counterpart.
//
// Every line ends in CR LF. A byte of 128 + n stands for the n characters that stand at the same
// columns one line up, line end included.
#pragma once

#include <span>
#include <string>

namespace brask {

// Codes stand wherever they save bytes, but neither in the first line, whose predecessor the
// receiver does not know, nor in "END DATA:" lines, which receivers look for in the stream itself.
// The lines must hold bytes from 1 to 127 only, and no line feed.
std::string EncodeStream(std::span<const std::string> lines);

}  // namespace brask
