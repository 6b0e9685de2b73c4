// brask help and brask --version: what the program can do, from the tables that it goes by.
#pragma once

#include <span>
#include <string>

#include "cli/CommandLine.h"

namespace brask {

struct Shell;

// One line for each option: how it is written and what it means, in columns.
std::string OptionLines(std::span<const OptionRow> rows, const Texts& texts);

// All commands, or the one named as argument or in front of --help.
ExitStatus RunHelp(Shell& shell, const CommandLine& line);
// One line, "brask 1.0.0", or the bare number in a document.
ExitStatus RunVersion(Shell& shell, const CommandLine& line);

}  // namespace brask
