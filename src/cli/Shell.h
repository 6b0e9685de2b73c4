// What every command of the shell programs works with, made once by RunProgram.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "cli/CommandLine.h"
#include "cli/JsonWriter.h"
#include "cli/OutputBuffer.h"
#include "platform/NativeSystem.h"
#include "platform/Texts.h"
#include "platform/console/ConsoleUserInterface.h"

namespace brask {

// References to what RunProgram owns; a command keeps none of them.
struct Shell {
    NativeSystem& System;
    const Texts& Words;
    ConsoleUserInterface& User;
    OutputBuffer& Out;
    std::span<const CommandRow> Commands;    // of this program
    std::span<const std::string> Arguments;  // all, as they were given
};

// Says in one line on standard error what is wrong with the command line; always kUsage. For
// `return WrongUsage(...)`. Nothing goes to standard output, with --json neither.
ExitStatus WrongUsage(std::string_view reason);

// The reason for WrongUsage when a command lacks an option that it cannot do without.
std::string OptionMissing(const Shell& shell, const CommandRow& command, std::string_view option);

// Shows a failure or refusal as a message. Goes to standard error and into the "messages" of a
// document.
void ShowFailure(Shell& shell, const std::string& text);

// Ends a document that is open for its last key: adds "messages", all that were shown.
void EndDocument(Shell& shell, JsonWriter& json);

// Runs the command that `arguments` (the program's name first) call for; the process's exit status.
int RunProgram(std::span<const CommandRow> commands, std::span<char* const> arguments);

}  // namespace brask
