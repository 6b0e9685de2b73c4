#include "platform/Version.h"

namespace brask {

std::string_view ProgramVersion() { return BRASK_VERSION; }

}  // namespace brask
