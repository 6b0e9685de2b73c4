// The program-wide dialog for an operation that failed unexpectedly.
#pragma once

#include <string>

#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

struct ProgramError {
    // what the program was doing; stands in the title
    std::string Operation;
    // what the system or the failed step said about it
    std::string Description;
    std::string Context;  // the operation when empty
    // whether the user may end the program here
    bool AllowEnd = true;
};

// Shows the error. When ending is allowed the user chooses Retry (true: the caller repeats or
// abandons its step) or Cancel, which ends the program; otherwise there is an OK button alone and
// the result is true.
bool ShowProgramError(UserInterface& user, const Texts& texts, const ProgramError& error);

}  // namespace brask
