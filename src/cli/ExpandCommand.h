// brask expand: turns a received, compressed stream into a data file.
#pragma once

#include <span>

#include "cli/CommandLine.h"

namespace brask {

// -o.
std::span<const OptionRow> ExpandOptions();

// Fails, with a message, when the stream cannot be read or the data file not written; a stream
// without one whole line is done and makes an empty file.
ExitStatus RunExpand(Shell& shell, const CommandLine& line);

}  // namespace brask
