// The version that all programs of the project report; the build names it once.
#pragma once

#include <string_view>

namespace brask {

// "1.0.0".
std::string_view ProgramVersion();

}  // namespace brask
