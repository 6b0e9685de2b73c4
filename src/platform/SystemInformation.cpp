#include "platform/SystemInformation.h"

#include "platform/PlatformTexts.h"

namespace brask {

std::string SystemErrorText(const SystemInformation& system, const Texts& texts, int number) {
    std::string text = system.ErrorText(number);
    // The number alone still lets somebody look the error up.
    if (!text.empty()) return text;
    return texts.Fill(platform_texts::kUnknownError, {std::to_string(number)});
}

}  // namespace brask
