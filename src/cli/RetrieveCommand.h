// brask retrieve: copies the collection files of a handheld to the PC and deletes them there.
#pragma once

#include <span>

#include "cli/CommandLine.h"

namespace brask {

struct Shell;

// --handheld.
std::span<const OptionRow> RetrieveOptions();

// Fails when no handheld is connected, a file could not be copied or a folder not be listed. Files
// that could be copied but not deleted are done, and so is a handheld without files.
ExitStatus RunRetrieve(Shell& shell, const CommandLine& line);

}  // namespace brask
