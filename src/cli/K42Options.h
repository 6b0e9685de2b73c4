// The command line of k42sim: where to listen, which file to play, which faults to show.
#pragma once

#include <string>

#include "cli/CommandLine.h"
#include "link/SimulatedInstrument.h"
#include "platform/Result.h"
#include "platform/Tcp.h"
#include "platform/Texts.h"

namespace brask {

struct K42Request {
    TcpAddress Listen;
    std::string File;
    InstrumentBehaviour Behaviour;
    bool Once = false;
};

// The program as one command, for CommandLine::ParseProgram. Its Run is empty.
const CommandRow& K42Program();

// What a checked line asks for; the error is a one-line reason for wrong usage.
Result<K42Request> ReadK42Request(const CommandLine& line, const Texts& texts);

// What --help prints.
std::string K42Help(const Texts& texts);

}  // namespace brask
