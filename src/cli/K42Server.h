// Serves the simulated instrument over TCP, and tells on standard output what happens.
#pragma once

#include <cstdio>
#include <memory>
#include <vector>

#include "cli/CommandLine.h"
#include "link/SimulatedConnection.h"
#include "platform/Clock.h"
#include "platform/StopSignal.h"
#include "platform/Tcp.h"
#include "platform/Texts.h"

namespace brask {

class K42Server {
  public:
    // Must outlive the server.
    struct Needs {
        TcpListener& Listener;
        SimulatedInstrument& Instrument;
        StopSignal& Stop;
        const Clock& Time;
        const Texts& Words;
        std::FILE* Log;  // one line for everything that happens, flushed at once
    };

    explicit K42Server(Needs needs);
    ~K42Server();

    // Serves whoever connects, several at a time, until stopped or, with `once`, until the first
    // session is over. Failed when listening breaks or that one session ended with an error.
    ExitStatus Run(bool once);

  private:
    // One connection that stands.
    struct Session;
    // How a look at a session came out.
    enum class Outcome { kGoesOn, kClosed, kBroken };

    // Takes in who has connected; false when that does not work any more.
    bool AcceptNext();
    Outcome Serve(Session& session, int wait);
    // Whether everything that was due has been taken by the system.
    Result<bool> SendDue(Session& session);
    Outcome Handle(Session& session, const TcpBytes& received);
    Outcome Broken(const Session& session, const Error& error);
    void Note(int number, const std::string& line);

    Needs needs_;
    std::vector<std::unique_ptr<Session>> sessions_;
    int count_ = 0;  // of connections so far
};

}  // namespace brask
