// Where the folders lie that the system knows, and those that the program has always used here.
#pragma once

#include <string>

#include "platform/Files.h"

namespace brask::windows {

// Without a separator at its end, UTF-8; empty when the system does not tell it.
std::string KnownFolderPath(KnownFolder folder);

}  // namespace brask::windows
