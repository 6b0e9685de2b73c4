// brask info: loads a data file and describes it.
#pragma once

#include "cli/CommandLine.h"

namespace brask {

struct Shell;

// Fails, describing nothing but in a document, when there are no readings.
ExitStatus RunInfo(Shell& shell, const CommandLine& line);

}  // namespace brask
