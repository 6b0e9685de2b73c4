// brask plot: checks what can be checked at once and leaves the drawing to brask-plot, so that
// brask itself needs no graphics.
#pragma once

#include <optional>

#include "cli/CommandLine.h"
#include "cli/PlotRequest.h"

namespace brask {

struct Shell;

// Runs brask-plot in this process's place, with the same arguments: the one beside this program,
// else ../libexec/brasklite/brask-plot, else the one that the system finds. Returns only when the
// options are wrong or no such program can be started.
ExitStatus RunPlot(Shell& shell, const CommandLine& line);

// The document of a plot; its values are null when no picture was written.
void WritePlotDocument(Shell& shell, const std::optional<PlotRequest>& written);

}  // namespace brask
