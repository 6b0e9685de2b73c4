// The drawing half of brask plot: draws offscreen, with the window's own drawing code.
#pragma once

#include "cli/CommandLine.h"

namespace brask {

struct Shell;

// Writes the picture. Fails, and writes nothing, when there are no readings.
ExitStatus RunDraw(Shell& shell, const CommandLine& line);

}  // namespace brask
