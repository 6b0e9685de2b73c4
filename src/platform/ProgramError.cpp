#include "platform/ProgramError.h"

#include "platform/PlatformTexts.h"

namespace brask {

bool ShowProgramError(UserInterface& user, const Texts& texts, const ProgramError& error) {
    const std::string& context = error.Context.empty() ? error.Operation : error.Context;
    Message message{texts.Fill(platform_texts::kErrorTitle, {error.Operation}),
                    texts.Fill(platform_texts::kErrorDescription, {error.Description, context})};
    // Without a way to end, there is nothing to choose between: one button.
    if (!error.AllowEnd) {
        user.ShowMessage(message);
        return true;
    }
    message.Text += "\r\n" + texts.Find(platform_texts::kCancelEndsProgram);
    if (user.AskRetry(message)) return true;
    user.EndProgram();
    return false;
}

}  // namespace brask
