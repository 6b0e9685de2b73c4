// Where the XDG base directories and the user's own folders lie.
#pragma once

#include <functional>
#include <string>

#include "platform/Files.h"

namespace brask::posix {

// The value of an environment variable, empty when unset. Handed in, so that tests need not change
// the environment of the process.
using Environment = std::function<std::string(const char*)>;

// The folder without a separator at its end, after the XDG Base Directory rules and, for the
// documents, the file user-dirs.dirs; empty when even the home directory is unknown.
std::string XdgFolder(KnownFolder folder, const Environment& environment);

}  // namespace brask::posix
