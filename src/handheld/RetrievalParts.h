// What the parts of a retrieval work with, handed in by whoever starts it.
#pragma once

#include <functional>
#include <string>

#include "data/DataDirectories.h"
#include "data/DiagnosticLog.h"
#include "data/RecoveryFolder.h"
#include "platform/Files.h"
#include "platform/HandheldAccess.h"
#include "platform/SystemInformation.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

// All of it must outlive the retrieval.
struct RetrievalParts {
    HandheldAccess& Handheld;
    Files& Disk;
    UserInterface& User;
    const Texts& Words;
    const SystemInformation& Information;
    const DataDirectories& Directories;
    RecoveryFolder& Recovery;
    DiagnosticLog& Log;

    // An error in words: the system's for its number, else the reason that it brings.
    std::string TextOf(const Error& error) const {
        return error.Number != 0 ? SystemErrorText(Information, Words, error.Number) : error.Reason;
    }
};

// Lets events run; whether the run is still wanted then. Asked before every step that takes time.
using MayGoOn = std::function<bool()>;

}  // namespace brask
