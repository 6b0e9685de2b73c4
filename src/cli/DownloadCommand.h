// brask download: one download from the instrument.
#pragma once

#include <span>

#include "cli/CommandLine.h"

namespace brask {

// --instrument, --clear, --no-clear, --timeout.
std::span<const OptionRow> DownloadOptionRows();

// Done when the download was accepted, cleared or not; failed when the link broke or the program
// was told to end, even behind an accepted file. Such a wish ends the run in good order. A
// rejection that has no message names the log, which has the reason.
ExitStatus RunDownload(Shell& shell, const CommandLine& line);

}  // namespace brask
