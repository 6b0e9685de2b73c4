// Infrared sockets that lead to a simulated instrument: frames over TCP, one connection a socket.
// A peer that cannot be reached, or that closes before it has said who it is, is an instrument out
// of range.
#pragma once

#include "platform/InfraredSockets.h"
#include "platform/Tcp.h"

namespace brask {

// The system's numbers for what this link finds out by itself, so that its texts fit them.
struct LinkErrorNumbers {
    int Closed;    // the other side closed while an answer was due
    int BadFrame;  // what it sent is no frame, or not the one that was due
};

class TcpInfraredSockets final : public InfraredSockets {
  public:
    // The network must outlive this object and its sockets.
    TcpInfraredSockets(Tcp& network, TcpAddress address, LinkErrorNumbers numbers)
        : network_(network), address_(std::move(address)), numbers_(numbers) {}

    Status Start() override { return {}; }
    void Stop() override {}
    Result<std::unique_ptr<InfraredSocket>> Open() override;

  private:
    Tcp& network_;
    TcpAddress address_;
    LinkErrorNumbers numbers_;
};

}  // namespace brask
