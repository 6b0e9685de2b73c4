// TCP over Windows sockets.
#pragma once

#include "platform/Tcp.h"

namespace brask {

// Starts the socket library with the first connection or listener; until then it costs nothing.
class WindowsTcp final : public Tcp {
  public:
    WindowsTcp() = default;
    ~WindowsTcp() override;
    WindowsTcp(const WindowsTcp&) = delete;
    WindowsTcp& operator=(const WindowsTcp&) = delete;

    Result<std::unique_ptr<TcpStream>> Connect(const TcpAddress& address) override;
    Result<std::unique_ptr<TcpListener>> Listen(const TcpAddress& address) override;

  private:
    // The error number, 0 when it runs.
    int StartLibrary();

    bool started_ = false;
};

}  // namespace brask
