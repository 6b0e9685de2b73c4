// brask settings: lists, prints and changes stored options.
#pragma once

#include "cli/CommandLine.h"

namespace brask {

// "list", "get KEY" or "set KEY VALUE". An unknown key is refused; a value is stored as it stands,
// without blanks at its ends.
ExitStatus RunSettings(Shell& shell, const CommandLine& line);

}  // namespace brask
