// brask: what the window does to data, from a shell.
#include <array>

#include "cli/CurvesCommand.h"
#include "cli/DownloadCommand.h"
#include "cli/ExpandCommand.h"
#include "cli/HelpCommand.h"
#include "cli/InfoCommand.h"
#include "cli/ListCommand.h"
#include "cli/PlotCommand.h"
#include "cli/PlotRequest.h"
#include "cli/RetrieveCommand.h"
#include "cli/SettingsCommand.h"
#include "cli/Shell.h"
#include "cli/VerifyCommand.h"

namespace {

using brask::TextRow;

// In the order of help. The window's work is reached through the same core objects, so that a
// script and a user get the same results.
const auto kCommands = std::to_array<brask::CommandRow>({
    {"info", "FILE", TextRow("cli", "describe a data file"), {}, 1, 1, brask::RunInfo},
    {"list", "FILE", TextRow("cli", "print readings as CSV"), brask::ListOptions(), 1, 1,
     brask::RunList},
    {"curves", "FILE", TextRow("cli", "print what the plot consists of"), brask::CurvesOptions(), 1,
     1, brask::RunCurves},
    {"plot", "FILE -o PICTURE", TextRow("cli", "draw the plot into a picture file"),
     brask::DrawingOptions(), 1, 1, brask::RunPlot},
    {"expand", "RAW -o OUT", TextRow("cli", "expand a received stream into a data file"),
     brask::ExpandOptions(), 1, 1, brask::RunExpand},
    {"verify",
     "RAW",
     TextRow("cli", "file and check a received stream as a download does"),
     {},
     1,
     1,
     brask::RunVerify},
    {"download", "", TextRow("cli", "download the readings of the instrument"),
     brask::DownloadOptionRows(), 0, 0, brask::RunDownload},
    {"retrieve", "", TextRow("cli", "collect the readings of a handheld"), brask::RetrieveOptions(),
     0, 0, brask::RunRetrieve},
    {"settings",
     "list | get KEY | set KEY VALUE",
     TextRow("cli", "show or change stored options"),
     {},
     1,
     3,
     brask::RunSettings},
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
