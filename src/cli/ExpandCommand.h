// brask expand: turns a received, compressed stream into a data file.
#pragma once

#include <span>

#include "cli/CommandLine.h"

namespace brask {

// -o.
std::span<const OptionRow> ExpandOptions();

ExitStatus RunExpand(Shell& shell, const CommandLine& line);

}  // namespace brask
