// brask-plot: what `brask plot` runs to draw.
#include <array>

#include "cli/HelpCommand.h"
#include "cli/PlotRequest.h"
#include "cli/Shell.h"
#include "cli/ui/DrawCommand.h"

namespace {

using brask::TextRow;

// The same row as in brask but for the function behind it: both read one command line alike.
const auto kCommands = std::to_array<brask::CommandRow>({
    {"plot", "FILE -o PICTURE", TextRow("cli", "draw the plot into a picture file"),
     brask::DrawingOptions(), 1, 1, brask::RunDraw},
    {"help",
     "[COMMAND]",
     TextRow("cli", "describe the commands, or one of them"),
     {},
     0,
     1,
     brask::RunHelp},
});

}  // namespace

int main(int argc, char** argv) {
    return brask::RunProgram(kCommands, {argv, static_cast<std::size_t>(argc)});
}
