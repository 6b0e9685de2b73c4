// TCP over the system's sockets.
#pragma once

#include "platform/Tcp.h"

namespace brask {

class PosixTcp final : public Tcp {
  public:
    // An error of looking the name up has the number EHOSTUNREACH and the resolver's own words.
    Result<std::unique_ptr<TcpStream>> Connect(const TcpAddress& address) override;
    Result<std::unique_ptr<TcpListener>> Listen(const TcpAddress& address) override;
};

}  // namespace brask
