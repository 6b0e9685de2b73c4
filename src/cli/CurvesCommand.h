// brask curves: builds the plot and prints what it consists of.
#pragma once

#include "cli/CommandLine.h"

namespace brask {

struct Shell;

// Without --json the points stay out: `list` has them. Fails when there are no readings; the
// document then holds the empty plot, without title.
ExitStatus RunCurves(Shell& shell, const CommandLine& line);

}  // namespace brask
