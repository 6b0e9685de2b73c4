// Which link leads to the handheld: "rapi" is its remote-access library, "dir:PATH" a folder that
// stands for its storage root.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "platform/HandheldAccess.h"

namespace brask {

struct HandheldAddress {
    bool Remote = false;  // the library; else a folder
    std::string Folder;   // native, as given; empty when none is set up
};

// The link where nothing is set up: the library where the system has it, elsewhere a folder that
// is yet to be chosen.
HandheldAddress DefaultHandheldAddress();

// Exact, in lower case; an empty text is the default. Nothing for any other text.
std::optional<HandheldAddress> ParseHandheldAddress(std::string_view text);

// The link that an address names; nothing is done with it yet.
std::unique_ptr<HandheldAccess> MakeHandheldAccess(const HandheldAddress& address, Files& files);

// The system's remote-access library. Where there is none it cannot be initialised.
std::unique_ptr<HandheldAccess> MakeRemoteHandheld();

}  // namespace brask
