// Texts of the platform floor.
#pragma once

#include "platform/Texts.h"

namespace brask::platform_texts {

inline constexpr auto kUnknownError = TextRow("platform", "??? Unknown Error #%1");
inline constexpr auto kErrorTitle = TextRow("platform", "%1 Error");
// %2 is where the error came from.
inline constexpr auto kErrorDescription = TextRow("platform", "Error Description:%1\r\n[%2]");
inline constexpr auto kCancelEndsProgram = TextRow("platform", "(Cancel Ends Program)");
// %1 the file, %2 what is wrong in it, %3 the name that it has now.
inline constexpr auto kSettingsSetAside =
    TextRow("platform", "The settings file %1 was damaged (%2); it was kept as %3");

}  // namespace brask::platform_texts
