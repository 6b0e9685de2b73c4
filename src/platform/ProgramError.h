// The program-wide dialog for an operation that failed unexpectedly.
#pragma once

#include <string>

#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

struct ProgramError {
    std::string Operation;
    std::string Description;
    std::string Context;  // the operation when empty
    bool AllowEnd = true;
};

// Shows the error. When ending is allowed the user chooses Retry (true: the caller repeats or
// abandons its step) or Cancel, which ends the program; otherwise there is an OK button alone and
// the result is true.
bool ShowProgramError(UserInterface& user, const Texts& texts, const ProgramError& error);

}  // namespace brask
