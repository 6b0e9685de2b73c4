// brask verify: files and checks a received stream as a download does.
#pragma once

#include "cli/CommandLine.h"

namespace brask {

// Done when the stream was accepted. A stream that the recovery folder knows is expanded below the
// line that stood above it when it was received.
ExitStatus RunVerify(Shell& shell, const CommandLine& line);

}  // namespace brask
