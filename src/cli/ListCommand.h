// brask list: prints readings as the data grid shows them, as CSV or as one document.
#pragma once

#include <span>

#include "cli/CommandLine.h"

namespace brask {

// --start, --count and --exact.
std::span<const OptionRow> ListOptions();

// Fails when there are no readings, and when the file ends before the first one asked for.
ExitStatus RunList(Shell& shell, const CommandLine& line);

}  // namespace brask
